#pragma once

#include "Domain/CorvaneData/Notification/EventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Base of events that report a new state.
struct StatusEventArgs : System::EventArgs
{
    bool operator==(StatusEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
