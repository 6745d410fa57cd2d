include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct DeletePlaylistsCommandParams {
    1: Guid.Guid commandGuid
    2: list<Guid.Guid> playlists
}
