include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct LiveCommandParams {
    1: Guid.Guid commandGuid
    2: map<Guid.Guid, Guid.Guid> players
}
