#include "Thrift/Commands/ToUpdatePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdatePlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToUpdatePlaylistsCommandParamsConverter::ToOrThrow(
    Generated::UpdatePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const
{
    static Data::Sequences::ThriftToPlaylistConverter const playlistConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.params.clear();
    if (source.__isset.params)
    {
        ReserveMore(destination.params, source.params.size());
        for (std::size_t i = 0; i < source.params.size(); ++i)
        {
            // The flags inside are ignored, and so are the playlists' results.
            auto const& wireParams = source.params[i];
            auto& params = destination.params.emplace_back();
            std::ignore =
                Read({"params", i, "oldPlaylist"}, playlistConverter, wireParams.oldPlaylist, params.oldPlaylist);
            std::ignore =
                Read({"params", i, "newPlaylist"}, playlistConverter, wireParams.newPlaylist, params.newPlaylist);
        }
    }
    return Success();
}

ConversionResult ThriftToUpdatePlaylistsCommandParamsConverter::To(
    Generated::UpdatePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToUpdatePlaylistsCommandParamsConverter::To(
    Generated::UpdatePlaylistsCommandParams&& source,
    HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
