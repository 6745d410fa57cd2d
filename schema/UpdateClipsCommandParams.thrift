include "Clip.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct UpdateClipParams {
    1: Clip.Clip oldClip
    2: Clip.Clip newClip
}

struct UpdateClipsCommandParams {
    1: Guid.Guid commandGuid
    2: list<UpdateClipParams> clips
}
