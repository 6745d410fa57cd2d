#include "Thrift/Commands/FromGetAnglesGroupsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandReply.h"
#include "Thrift/Data/Clips/FromAnglesGroup.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetAnglesGroupsCommandReply_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult GetAnglesGroupsCommandReplyToThriftConverter::To(
    HighLevelOperations::Commands::GetAnglesGroupsCommandReply const& source,
    Generated::GetAnglesGroupsCommandReply& destination) const noexcept
{
    Data::Clips::AnglesGroupToThriftConverter const fromItem;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    // From the current position of the cursor to the end. The results of the items are ignored.
    ReserveFor(destination.groups, source);
    while (source.MoveNext())
    {
        std::ignore = fromItem.To(source.CurrentAnglesGroup(), destination.groups.emplace_back());
        destination.__isset.groups = true;
    }
    TALVO_FLAGGED(destination, revision) = source.revision;
    return Success();
}

ConversionResult
GetAnglesGroupsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetAnglesGroupsCommandReply&& source,
                                                 Generated::GetAnglesGroupsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
