#include "Thrift/Commands/FromCreatePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreatePlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreatePlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult CreatePlaylistsCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::CreatePlaylistsCommandParams const& source,
    Generated::CreatePlaylistsCommandParams& destination) const noexcept
{
    static Data::Sequences::PlaylistToThriftConverter const playlistConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    AppendAll("playlists", playlistConverter, source.playlists, destination.playlists);
    if (!source.playlists.empty()) destination.__isset.playlists = true;
    return Success();
}

ConversionResult
CreatePlaylistsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::CreatePlaylistsCommandParams&& source,
                                                  Generated::CreatePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
