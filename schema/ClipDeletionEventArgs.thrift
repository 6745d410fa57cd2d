include "Clip.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ClipDeletionFinishedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip removedClip
    3: i64 databaseRevision
}

struct ClipDeletionFailedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip removedClip
    3: OperationResult.OperationResult result
    4: i16 internalResult
    5: i16 essenceBitmap
    6: bool fromUCode
    7: bool forceForPlaylist
    8: i64 databaseRevision
}
