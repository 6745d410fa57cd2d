include "ClipResultsItem.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct ClipCommandReply {
    1: Guid.Guid guid
    2: list<ClipResultsItem.ClipResultsItem> results
}
