include "Guid.thrift"
include "PlayerDataOverrides.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct SetMultiviewerDataCommandParams {
    1: required Guid.Guid commandGuid
    2: required map<Guid.Guid, PlayerDataOverrides.PlayerDataOverrides> playersDataOverrides
}
