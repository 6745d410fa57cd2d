#include "Thrift/Commands/ToGetChannelsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Data/Channels/ToRecorderState.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetChannelsCommandReply_types.h"

#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::Channels::PlayerState;
using Corvane::Data::Channels::RecorderState;
using HighLevelOperations::Commands::GetChannelsCommandReply;
using ChannelGuid = Corvane::Data::Channels::Guid;

ConversionResult GetChannelsCommandReplyFromThriftConverter::ToOrThrow(
    Generated::GetChannelsCommandReply const& source,
    HighLevelOperations::Commands::GetChannelsCommandReply& destination) const
{
    Data::Channels::ThriftToPlayerStateConverter const toPlayer;
    Data::Channels::ThriftToRecorderStateConverter const toRecorder;

    // Flags and the results of the states are ignored. If two keys become one channel, the later one counts.
    GetChannelsCommandReply reply;
    reply.commandGuid = ReadGuidAs<ChannelGuid>(source.guid);
    for (auto const& [wireChannel, wirePlayer] : source.players)
    {
        PlayerState player;
        std::ignore = Read({"players", wireChannel.value}, toPlayer, wirePlayer, player);
        reply.players.insert_or_assign(ReadGuidAs<ChannelGuid>(wireChannel), player);
    }
    for (auto const& [wireChannel, wireRecorder] : source.recorders)
    {
        RecorderState recorder;
        std::ignore = Read({"recorders", wireChannel.value}, toRecorder, wireRecorder, recorder);
        reply.recorders.insert_or_assign(ReadGuidAs<ChannelGuid>(wireChannel), recorder);
    }
    destination = std::move(reply);
    return Success();
}

ConversionResult GetChannelsCommandReplyFromThriftConverter::To(
    Generated::GetChannelsCommandReply const& source,
    HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult GetChannelsCommandReplyFromThriftConverter::To(
    Generated::GetChannelsCommandReply&& source,
    HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
