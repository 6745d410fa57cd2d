#include "Thrift/Commands/FromChannelCommandReply.h"

#include "Domain/HighLevelOperations/Commands/ChannelCommandReply.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/ChannelCommandReply_types.h"

#include <cstddef>
#include <cstdint>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ChannelCommandReplyToThriftConverter::To(HighLevelOperations::Commands::ChannelCommandReply const& source,
                                         Generated::ChannelCommandReply& destination) const noexcept
{
    Data::OperationStatusToThriftConverter const fromStatus;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    // The condition is tested after the first pass: a reply without results still sends its first slot. Peers rely on
    // this.
    std::size_t i = 0;
    do
    {
        auto& wireResult = destination.channelResults.emplace_back();
        SendGuid(source.results[i].channel, TALVO_FLAGGED(wireResult, guid));
        std::ignore = fromStatus.To(source.results[i].operationStatus, TALVO_FLAGGED(wireResult, status));
        ++i;
    } while (i < source.results.size() && static_cast<std::int32_t>(i) < source.resultCount);
    destination.__isset.channelResults = true;
    return Success();
}

ConversionResult ChannelCommandReplyToThriftConverter::To(HighLevelOperations::Commands::ChannelCommandReply&& source,
                                                          Generated::ChannelCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
