include "Guid.thrift"
include "Playlist.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct CreatePlaylistsCommandParams {
    1: Guid.Guid commandGuid
    2: list<Playlist.Playlist> playlists
}
