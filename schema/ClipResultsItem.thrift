include "Clip.thrift"
include "OperationStatus.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct ClipResultsItem {
    1: OperationStatus.OperationStatus operationStatus
    2: optional Clip.Clip clip
}
