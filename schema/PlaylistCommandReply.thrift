include "Guid.thrift"
include "PlaylistResultsItem.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct PlaylistCommandReply {
    1: Guid.Guid guid
    2: list<PlaylistResultsItem.PlaylistResultsItem> results
}
