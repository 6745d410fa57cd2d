#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The states of all channels.
struct GetChannelsCommandReply : CommandReply
{
    ReplyType GetType() const noexcept override { return ReplyType::GetChannels; }

    /// Whether all fields are equal.
    bool operator==(GetChannelsCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && players == other.players && recorders == other.recorders;
    }

    std::map<Corvane::Data::Channels::Guid, Corvane::Data::Channels::PlayerState> players;
    std::map<Corvane::Data::Channels::Guid, Corvane::Data::Channels::RecorderState> recorders;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
