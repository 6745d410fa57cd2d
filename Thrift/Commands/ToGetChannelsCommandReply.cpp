#include "Thrift/Commands/ToGetChannelsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Data/Channels/ToRecorderState.h"
#include "Thrift/Detail/Identifiers.h"
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

ConversionResult GetChannelsCommandReplyFromThriftConverter::To(
    Generated::GetChannelsCommandReply const& source,
    HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept
{
    Data::Channels::ThriftToPlayerStateConverter const toPlayer;
    Data::Channels::ThriftToRecorderStateConverter const toRecorder;

    // No flag is read. What a state reports is not looked at, and of two keys that become one channel the later counts.
    GetChannelsCommandReply reply;
    reply.commandGuid = ReadGuidAs<ChannelGuid>(source.guid);
    for (auto const& [wireChannel, wirePlayer] : source.players)
    {
        PlayerState player;
        std::ignore = toPlayer.To(wirePlayer, player);
        reply.players.insert_or_assign(ReadGuidAs<ChannelGuid>(wireChannel), player);
    }
    for (auto const& [wireChannel, wireRecorder] : source.recorders)
    {
        RecorderState recorder;
        std::ignore = toRecorder.To(wireRecorder, recorder);
        reply.recorders.insert_or_assign(ReadGuidAs<ChannelGuid>(wireChannel), recorder);
    }
    destination = std::move(reply);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
