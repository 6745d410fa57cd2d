include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct DialCommandParams {
    1: Guid.Guid commandGuid
    2: set<Guid.Guid> players
    3: i32 velocity
}
