include "AnglesGroup.thrift"
include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct AnglesGroupCreationEventArgs {
    1: required ClipCommandEventArgs.ClipCommandEventArgs clipCommandEventArgs
    2: required AnglesGroup.AnglesGroup anglesGroup
    3: required i64 databaseRevision
}

struct AnglesGroupCreationFinishedEventArgs {
    1: required AnglesGroupCreationEventArgs creationEventArgs
}

struct AnglesGroupCreationFailedEventArgs {
    1: required AnglesGroupCreationEventArgs creationEventArgs
    2: required OperationResult.OperationResult result
    3: required i16 internalResult
}
