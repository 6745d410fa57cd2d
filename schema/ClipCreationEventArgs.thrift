include "Clip.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ClipCreationStartedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip newClip
    4: string creationType
    5: string networkType
    6: i64 databaseRevision
}

struct ClipCreationFinishedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip newClip
    4: string creationType
    5: string networkType
    6: i64 databaseRevision
}

struct ClipCreationFailedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: Clip.Clip sourceClip
    3: Clip.Clip newClip
    4: string creationType
    5: string networkType
    6: OperationResult.OperationResult result
    7: i16 internalResult
    8: i64 databaseRevision
}
