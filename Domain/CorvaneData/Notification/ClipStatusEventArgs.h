#pragma once

#include "Domain/CorvaneData/Notification/StatusEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A clip has another state.
struct ClipStatusEventArgs : StatusEventArgs
{
    bool operator==(ClipStatusEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
