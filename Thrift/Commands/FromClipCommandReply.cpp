#include "Thrift/Commands/FromClipCommandReply.h"

#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Thrift/Commands/FromClipResultsItem.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ClipCommandReplyToThriftConverter::To(HighLevelOperations::Commands::ClipCommandReply const& source,
                                                       Generated::ClipCommandReply& destination) const noexcept
{
    ClipResultsItemToThriftConverter const fromItem;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    AppendAll("results", fromItem, source.results, destination.results);
    destination.__isset.results = true; // even without items
    return Success();
}

ConversionResult ClipCommandReplyToThriftConverter::To(HighLevelOperations::Commands::ClipCommandReply&& source,
                                                       Generated::ClipCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
