#pragma once

#include "Domain/CorvaneData/Notification/StatusEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A server has another state.
struct ServerStatusEventArgs : StatusEventArgs
{
    bool operator==(ServerStatusEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
