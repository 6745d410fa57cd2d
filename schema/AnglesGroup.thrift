include "Clip.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Data.Clips.Groups.Generated

struct AnglesGroupItem {
    1: required Guid.Guid clipId
    2: required Clip.PreferentialCamera preferencialCamera
}

struct AnglesGroup {
    1: required Guid.Guid id
    2: required map<Clip.Camera, AnglesGroupItem> angles
}
