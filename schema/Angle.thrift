include "Clip.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Data.Clips.Groups.Generated

struct Angle {
    1: required Clip.Camera camera
    2: required Guid.Guid clipId
}
