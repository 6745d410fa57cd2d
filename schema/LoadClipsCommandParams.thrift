include "Guid.thrift"
include "LoadBoundary.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct LoadClipCommandParam {
    1: Guid.Guid clip
    2: i64 timepoint
    3: LoadBoundary.LoadBoundary inBoundary
    4: LoadBoundary.LoadBoundary outBoundary
}

struct LoadClipsCommandParams {
    1: Guid.Guid commandGuid
    2: map<Guid.Guid, LoadClipCommandParam> playersParameters
}
