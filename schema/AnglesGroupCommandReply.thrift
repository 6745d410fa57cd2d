include "ClipCommandReply.thrift"
include "Guid.thrift"
include "OperationStatus.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct AnglesGroupCommandReply {
    1: Guid.Guid commandGuid
    2: Guid.Guid groupGuid
    3: OperationStatus.OperationStatus operationStatus
    4: ClipCommandReply.ClipCommandReply clipCommandReply
}
