#pragma once

#include "Domain/CorvaneData/Notification/ClipDeletionEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip was deleted.
struct ClipDeletionFinishedEventArgs : ClipDeletionEventArgs
{
    /// Takes the same arguments as ClipDeletionEventArgs.
    using ClipDeletionEventArgs::ClipDeletionEventArgs;

    bool operator==(ClipDeletionFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
