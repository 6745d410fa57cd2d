#pragma once

#include "Domain/CorvaneData/Notification/ClipDeletionEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A clip was deleted.
struct ClipDeletionFinishedEventArgs : ClipDeletionEventArgs
{
    /// As ClipDeletionEventArgs.
    using ClipDeletionEventArgs::ClipDeletionEventArgs;

    bool operator==(ClipDeletionFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
