#include "Thrift/Commands/ToChannelCommandReply.h"

#include "Domain/HighLevelOperations/Commands/ChannelCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/ChannelCommandReply_types.h"

#include <cstddef>
#include <cstdint>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::ChannelCommandReply;
using HighLevelOperations::Commands::ChannelResult;

namespace
{

/// Stores a result in the slot of its channel, or after the others; a channel for which no slot is left is dropped. The
/// condition is tested after the first pass: the first slot is compared even if there are no results, so a default
/// channel takes it without being counted.
void Put(ChannelCommandReply& reply, ChannelResult const& result) noexcept
{
    std::size_t i = 0;
    do
    {
        if (reply.results[i].channel == result.channel)
        {
            reply.results[i] = result;
            return;
        }
        ++i;
    } while (i < reply.results.size() && static_cast<std::int32_t>(i) < reply.resultCount);

    auto const count = static_cast<std::size_t>(reply.resultCount);
    if (count >= reply.results.size()) return;
    reply.results[count] = result;
    ++reply.resultCount;
}

} // namespace

ConversionResult
ThriftToChannelCommandReplyConverter::To(Generated::ChannelCommandReply const& source,
                                         HighLevelOperations::Commands::ChannelCommandReply& destination) const noexcept
{
    Data::ThriftToOperationStatusConverter const toStatus;
    auto const& isset = source.__isset;

    if (!isset.guid && !isset.channelResults) return Failure("ChannelCommandReply is empty");
    if (isset.guid) destination = ChannelCommandReply(ReadGuidAs<Corvane::Data::Channels::Guid>(source.guid));
    if (!isset.channelResults) return Success();

    ChannelCommandReply received(destination.commandGuid);
    for (auto const& wireResult : source.channelResults)
    {
        Corvane::Data::OperationStatus status;
        std::ignore = Read("channelResults", toStatus, wireResult.status, status);
        Put(received, {ReadGuidAs<Corvane::Data::Channels::Guid>(wireResult.guid), status});
    }
    // The condition is tested after the first pass: without results the first slot, which holds the default, is still
    // stored.
    std::size_t i = 0;
    do
    {
        Put(destination, received.results[i]);
        ++i;
    } while (static_cast<std::int32_t>(i) < received.resultCount);

    // Without an identifier the conversion fails, although the results have been stored.
    return isset.guid ? Success() : Failure("ChannelCommandReply is empty");
}

ConversionResult
ThriftToChannelCommandReplyConverter::To(Generated::ChannelCommandReply&& source,
                                         HighLevelOperations::Commands::ChannelCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
