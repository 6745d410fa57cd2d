#include "Thrift/Commands/FromGetChannelsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/FromRecorderState.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetChannelsCommandReply_types.h"

#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetChannelsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetChannelsCommandReply const& source,
                                             Generated::GetChannelsCommandReply& destination) const noexcept
{
    Data::Channels::PlayerStateToThriftConverter const fromPlayer;
    Data::Channels::RecorderStateToThriftConverter const fromRecorder;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    // The flags of both maps are unchanged. The results of the states are ignored.
    for (auto const& [channel, player] : source.players)
    {
        Data::Channels::Generated::PlayerState wirePlayer;
        std::ignore = fromPlayer.To(player, wirePlayer);
        destination.players.insert_or_assign(SentGuid(channel), std::move(wirePlayer));
    }
    for (auto const& [channel, recorder] : source.recorders)
    {
        Data::Channels::Generated::RecorderState wireRecorder;
        std::ignore = fromRecorder.To(recorder, wireRecorder);
        destination.recorders.insert_or_assign(SentGuid(channel), std::move(wireRecorder));
    }
    return Success();
}

ConversionResult
GetChannelsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetChannelsCommandReply&& source,
                                             Generated::GetChannelsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
