include "ClipCommandEventArgs.thrift"
include "Guid.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct AnglesGroupDeletionEventArgs {
    1: required ClipCommandEventArgs.ClipCommandEventArgs clipCommandEventArgs
    2: required Guid.Guid anglesGroupId
    3: required i64 databaseRevision
}

struct AnglesGroupDeletionFinishedEventArgs {
    1: required AnglesGroupDeletionEventArgs deletionEventArgs
}

struct AnglesGroupDeletionFailedEventArgs {
    1: required AnglesGroupDeletionEventArgs deletionEventArgs
    2: required OperationResult.OperationResult result
    3: required i16 internalResult
}
