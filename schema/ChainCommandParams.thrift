include "Guid.thrift"
include "LoadBoundary.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct ChainCommandParams {
    1: Guid.Guid commandGuid
    2: map<Guid.Guid, Guid.Guid> players
    3: i64 timepoint
    4: LoadBoundary.LoadBoundary inBoundary
    5: LoadBoundary.LoadBoundary outBoundary
}
