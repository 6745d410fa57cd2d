#pragma once

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A clip was made.
struct ClipCreationFinishedEventArgs : ClipCreationEventArgs
{
    /// As ClipCreationEventArgs.
    using ClipCreationEventArgs::ClipCreationEventArgs;

    bool operator==(ClipCreationFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
