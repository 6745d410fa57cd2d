#pragma once

#include "Domain/CorvaneData/Notification/StatusEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Base of events that report a new state of a clip.
struct ClipStatusEventArgs : StatusEventArgs
{
    bool operator==(ClipStatusEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
