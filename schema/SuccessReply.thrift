include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct SuccessReply {
    1: Guid.Guid guid
}
