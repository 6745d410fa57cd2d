include "PlayerState.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct PlayerStateChangedEventArgs {
    1: i32 channelIndex
    2: i64 channelSerial
    3: optional i32 eventFlags
    4: PlayerState.PlayerState status
}
