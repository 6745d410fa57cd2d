include "Guid.thrift"
include "OperationStatus.thrift"
include "PlayerDataOverrides.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetMultiviewerDataCommandReply {
    1: required Guid.Guid guid
    2: required OperationStatus.OperationStatus status
    3: required map<Guid.Guid, PlayerDataOverrides.PlayerDataOverrides> playersDataOverrides
}
