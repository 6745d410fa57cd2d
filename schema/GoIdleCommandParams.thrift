include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GoIdleCommandParams {
    1: Guid.Guid commandGuid
    2: set<Guid.Guid> players
    3: bool setBlackScreen
}
