include "OperationResult.thrift"
include "OperationStatusStatus.thrift"

namespace cpp Talvo.Corvane.Data.Generated

struct OperationStatus {
    1: optional OperationStatusStatus.OperationStatusStatus status
    2: optional OperationResult.OperationResult result
}
