#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// A recorder channel has another state.
struct RecorderStateChangedEventArgs
{
    Data::Channels::Guid channelGuid;
    std::int32_t eventFlags = 0;
    Data::Channels::RecorderState state;

    bool operator==(RecorderStateChangedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
