include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetClipsCommandParams {
    1: Guid.Guid commandGuid
}
