include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct DeleteClipsCommandParams {
    1: Guid.Guid commandGuid
    2: list<Guid.Guid> clips
}
