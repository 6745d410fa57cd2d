#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: the state of a recorder channel has changed.
struct RecorderStateChangedEventArgs
{
    Data::Channels::Guid channelGuid;
    std::int32_t eventFlags = 0;
    Data::Channels::RecorderState state;

    bool operator==(RecorderStateChangedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
