include "Guid.thrift"
include "RecordingRange.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct RecordingRangesChangedEventArgs {
    1: Guid.Guid recorderId
    2: list<RecordingRange.RecordingRange> recordingRanges
    3: bool isInBoundMoving
    4: bool isOutBoundMoving
}
