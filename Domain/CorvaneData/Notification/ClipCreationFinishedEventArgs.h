#pragma once

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip was created.
struct ClipCreationFinishedEventArgs : ClipCreationEventArgs
{
    /// Takes the same arguments as ClipCreationEventArgs.
    using ClipCreationEventArgs::ClipCreationEventArgs;

    bool operator==(ClipCreationFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
