include "Guid.thrift"
include "OperationStatus.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct ChannelResult {
    1: Guid.Guid guid
    2: OperationStatus.OperationStatus status
}

struct ChannelCommandReply {
    1: Guid.Guid guid
    2: list<ChannelResult> channelResults
}
