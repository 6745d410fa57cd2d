include "Clip.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct CreateClipParams {
    1: Guid.Guid sourceId
    2: Clip.Clip clip
    3: bool setTimecodes
}

struct CreateClipsCommandParams {
    1: Guid.Guid commandGuid
    2: list<CreateClipParams> clips
}
