include "ClipCommandEventArgs.thrift"
include "OperationResult.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct MassClipDeletionFinishedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: i64 machineSerial
    3: i64 databaseRevision
}

struct MassClipDeletionFailedEventArgs {
    1: ClipCommandEventArgs.ClipCommandEventArgs clipCommand
    2: i64 machineSerial
    3: OperationResult.OperationResult result
    4: i16 internalResult
    5: i64 databaseRevision
}
