include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct FailureReply {
    1: Guid.Guid guid
    2: string error
}
