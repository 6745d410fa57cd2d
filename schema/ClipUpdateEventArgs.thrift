include "Clip.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ClipUpdateFinishedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip oldClip
    3: Clip.Clip newClip
    4: bool endOfGrowingClipCreation
    5: i64 databaseRevision
}

struct ClipUpdateFailedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip oldClip
    3: Clip.Clip newClip
    4: OperationResult.OperationResult result
    5: i16 internalResult
    6: i64 databaseRevision
}
