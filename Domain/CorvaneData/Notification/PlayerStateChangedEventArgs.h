#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// A player channel has another state.
struct PlayerStateChangedEventArgs
{
    Data::Channels::Guid channelGuid;
    std::int32_t eventFlags = 0;
    Data::Channels::PlayerState state;

    bool operator==(PlayerStateChangedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
