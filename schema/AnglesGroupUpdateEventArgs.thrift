include "AnglesGroup.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct AnglesGroupUpdateEventArgs {
    1: required ClipCommandEventArgs.ClipCommandEventArgs clipCommandEventArgs
    2: required AnglesGroup.AnglesGroup anglesGroup
    3: required i64 databaseRevision
}

struct AnglesGroupUpdateFinishedEventArgs {
    1: required AnglesGroupUpdateEventArgs updateEventArgs
}

struct AnglesGroupUpdateFailedEventArgs {
    1: required AnglesGroupUpdateEventArgs updateEventArgs
    2: required OperationResult.OperationResult result
    3: required i16 internalResult
}
