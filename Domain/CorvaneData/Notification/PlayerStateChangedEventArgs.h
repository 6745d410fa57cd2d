#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: the state of a player channel has changed.
struct PlayerStateChangedEventArgs
{
    Data::Channels::Guid channelGuid;
    std::int32_t eventFlags = 0;
    Data::Channels::PlayerState state;

    bool operator==(PlayerStateChangedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
