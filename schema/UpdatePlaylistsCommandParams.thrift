include "Guid.thrift"
include "Playlist.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct UpdatePlaylistParams {
    1: Playlist.Playlist oldPlaylist
    2: Playlist.Playlist newPlaylist
}

struct UpdatePlaylistsCommandParams {
    1: Guid.Guid commandGuid
    2: list<UpdatePlaylistParams> params
}
