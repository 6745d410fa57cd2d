#include "Thrift/Commands/ToPlaylistResultsItem.h"

#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"
#include "Thrift/Commands/Results.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/PlaylistResultsItem_types.h"

#include <memory>
#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToPlaylistResultsItemConverter::ToOrThrow(Generated::PlaylistResultsItem const& source,
                                                HighLevelOperations::Commands::PlaylistResultsItem& destination) const
{
    Data::Sequences::ThriftToPlaylistConverter const toPlaylist;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.operationStatus)) ReadStatus(source, destination);
    if (seen(isset.playlist))
    {
        // Kept regardless of the status, unlike the clip in a ClipResultsItem. The result of the playlist is ignored.
        auto playlist = std::make_unique<Corvane::Data::Sequences::Playlist>();
        std::ignore = Read("playlist", toPlaylist, source.playlist, *playlist);
        destination.playlist = std::move(playlist);
    }
    return seen.None() ? Failure("PlaylistResultsItem is empty") : Success();
}

ConversionResult
ThriftToPlaylistResultsItemConverter::To(Generated::PlaylistResultsItem const& source,
                                         HighLevelOperations::Commands::PlaylistResultsItem& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToPlaylistResultsItemConverter::To(Generated::PlaylistResultsItem&& source,
                                         HighLevelOperations::Commands::PlaylistResultsItem& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
