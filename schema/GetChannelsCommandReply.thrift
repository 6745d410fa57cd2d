include "Guid.thrift"
include "PlayerState.thrift"
include "RecorderState.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetChannelsCommandReply {
    1: Guid.Guid guid
    2: map<Guid.Guid, PlayerState.PlayerState> players
    3: map<Guid.Guid, RecorderState.RecorderState> recorders
}
