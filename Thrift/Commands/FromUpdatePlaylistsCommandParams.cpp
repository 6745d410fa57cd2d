#include "Thrift/Commands/FromUpdatePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdatePlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult UpdatePlaylistsCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::UpdatePlaylistsCommandParams const& source,
    Generated::UpdatePlaylistsCommandParams& destination) const noexcept
{
    static Data::Sequences::PlaylistToThriftConverter const playlistConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    ReserveMore(destination.params, source.params.size());
    for (auto const& params : source.params)
    {
        auto& wireParams = destination.params.emplace_back();
        std::ignore = playlistConverter.To(params.oldPlaylist, TALVO_FLAGGED(wireParams, oldPlaylist));
        std::ignore = playlistConverter.To(params.newPlaylist, TALVO_FLAGGED(wireParams, newPlaylist));
    }
    if (!source.params.empty()) destination.__isset.params = true;
    return Success();
}

ConversionResult
UpdatePlaylistsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::UpdatePlaylistsCommandParams&& source,
                                                  Generated::UpdatePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
