include "Clip.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated

enum RecorderModeStatus {
    Idle = 0,
    Recording = 1,
    Pause = 2
}

struct RecorderState {
    1: i64 serial
    2: i32 channelIndex
    3: string name
    4: RecorderModeStatus status
    5: optional bool isFirstTimePointRunning
    6: optional i64 firstTimePoint
    7: optional i64 lastTimePoint
    8: optional string lastTodTimecode
    9: optional string lastUserTimecode
    10: optional Clip.PrimaryTimecode primaryTimecodeType
    11: i64 remainingCapacity
    12: i64 totalCapacity
    13: optional Clip.Clip recorderTrain
}
