#include "Thrift/Commands/FromPlaylistCommandReply.h"

#include "Domain/HighLevelOperations/Commands/PlaylistCommandReply.h"
#include "Thrift/Commands/FromPlaylistResultsItem.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlaylistCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
PlaylistCommandReplyToThriftConverter::To(HighLevelOperations::Commands::PlaylistCommandReply const& source,
                                          Generated::PlaylistCommandReply& destination) const noexcept
{
    PlaylistResultsItemToThriftConverter const fromItem;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    AppendAll("results", fromItem, source.results, destination.results);
    destination.__isset.results = true; // even without items
    return Success();
}

ConversionResult PlaylistCommandReplyToThriftConverter::To(HighLevelOperations::Commands::PlaylistCommandReply&& source,
                                                           Generated::PlaylistCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
