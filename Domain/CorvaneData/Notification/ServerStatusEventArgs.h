#pragma once

#include "Domain/CorvaneData/Notification/StatusEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Base of events that report a new state of a server.
struct ServerStatusEventArgs : StatusEventArgs
{
    bool operator==(ServerStatusEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
