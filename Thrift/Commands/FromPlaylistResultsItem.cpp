#include "Thrift/Commands/FromPlaylistResultsItem.h"

#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlaylistResultsItem_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
PlaylistResultsItemToThriftConverter::To(HighLevelOperations::Commands::PlaylistResultsItem const& source,
                                         Generated::PlaylistResultsItem& destination) const noexcept
{
    Data::OperationStatusToThriftConverter const fromStatus;
    Data::Sequences::PlaylistToThriftConverter const fromPlaylist;

    std::ignore = fromStatus.To(source.OperationStatus(), TALVO_FLAGGED(destination, operationStatus));
    // A held playlist is always written, regardless of the status and its contents, unlike the clip in a
    // ClipResultsItem.
    bool const hasPlaylist = source.playlist != nullptr;
    if (hasPlaylist) std::ignore = fromPlaylist.To(*source.playlist, destination.playlist);
    destination.__isset.playlist = hasPlaylist;
    return Success();
}

ConversionResult PlaylistResultsItemToThriftConverter::To(HighLevelOperations::Commands::PlaylistResultsItem&& source,
                                                          Generated::PlaylistResultsItem& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
