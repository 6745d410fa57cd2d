include "Clip.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ClipMoveStartedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip destClip
    4: i64 databaseRevision
}

struct ClipMoveFinishedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip destClip
    4: i64 databaseRevision
}

struct ClipMoveFailedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip destClip
    4: OperationResult.OperationResult result
    5: i16 internalResult
    6: i64 databaseRevision
}
