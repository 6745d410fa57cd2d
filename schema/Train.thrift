include "Clip.thrift"
include "RecordingRange.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Clips.Generated

struct Train {
    1: optional Clip.Clip trainData
    2: list<RecordingRange.RecordingRange> recordingRanges
    3: bool isInMoving
    4: bool isOutMoving
    5: string lastKnownTimeCode
}
