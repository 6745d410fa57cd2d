include "LoadBoundary.thrift"
include "PlayerClipOnAir.thrift"
include "PlayerInfoOnAir.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated

enum PlayingLoopMode {
    Unknown = 0,
    None = 1,
    Loop = 2,
    Bounce = 3
}

struct PlayerState {
    1: i64 serial
    2: i32 channelIndex
    3: string name
    4: PlayerInfoOnAir.PlayerModeStatus status
    5: PlayerInfoOnAir.PlayerModeType mode
    6: PlayerInfoOnAir.PlayerInfoOnAir infoOnAir
    7: PlayerClipOnAir.PlayerClipOnAir pgmOnAir
    8: PlayerClipOnAir.PlayerClipOnAir previewOnAir
    9: optional i64 pgmInTimePointOnAir
    10: optional i64 pgmShortInTimePointOnAir
    11: optional i64 pgmShortOutTimePointOnAir
    12: optional i64 pgmOutTimePointOnAir
    13: optional string todPgmInTimecodeOnAir
    14: optional string todPgmShortInTimecodeOnAir
    15: optional string todPgmShortOutTimecodeOnAir
    16: optional string todPgmOutTimecodeOnAir
    17: optional string userPgmInTimecodeOnAir
    18: optional string userPgmShortInTimecodeOnAir
    19: optional string userPgmShortOutTimecodeOnAir
    20: optional string userPgmOutTimecodeOnAir
    21: optional PlayingLoopMode globalLoopMode
    22: LoadBoundary.LoadBoundary inBoundary
    23: LoadBoundary.LoadBoundary outBoundary
}
