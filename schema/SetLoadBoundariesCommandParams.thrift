include "Guid.thrift"
include "LoadBoundary.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct SetLoadBoundariesCommandParam {
    3: LoadBoundary.LoadBoundary inBoundary
    4: LoadBoundary.LoadBoundary outBoundary
}

struct SetLoadBoundariesCommandParams {
    1: Guid.Guid commandGuid
    2: map<Guid.Guid, SetLoadBoundariesCommandParam> playersParameters
}
