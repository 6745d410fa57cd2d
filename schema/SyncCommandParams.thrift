include "Guid.thrift"
include "LoadBoundary.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct SyncCommandParams {
    1: Guid.Guid commandGuid
    2: Guid.Guid sourcePlayer
    3: set<Guid.Guid> players
    4: LoadBoundary.LoadBoundary inBoundary
    5: LoadBoundary.LoadBoundary outBoundary
}
