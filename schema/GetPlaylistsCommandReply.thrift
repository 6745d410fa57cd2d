include "Guid.thrift"
include "Playlist.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetPlaylistsCommandReply {
    1: Guid.Guid guid
    2: i64 revision
    3: list<Playlist.Playlist> playlists
}
