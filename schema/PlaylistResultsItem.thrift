include "OperationStatus.thrift"
include "Playlist.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct PlaylistResultsItem {
    1: OperationStatus.OperationStatus operationStatus
    2: optional Playlist.Playlist playlist
}
