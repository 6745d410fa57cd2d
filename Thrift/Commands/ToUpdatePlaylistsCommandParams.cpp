#include "Thrift/Commands/ToUpdatePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdatePlaylistsCommandParams.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToUpdatePlaylistsCommandParamsConverter::To(
    Generated::UpdatePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const noexcept
{
    static Data::Sequences::ThriftToPlaylistConverter const playlistConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.params.clear();
    if (source.__isset.params)
    {
        ReserveMore(destination.params, source.params.size());
        for (auto const& wireParams : source.params)
        {
            // The flags inside are not read, and what the playlists report is not looked at.
            auto& params = destination.params.emplace_back();
            std::ignore = playlistConverter.To(wireParams.oldPlaylist, params.oldPlaylist);
            std::ignore = playlistConverter.To(wireParams.newPlaylist, params.newPlaylist);
        }
    }
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
