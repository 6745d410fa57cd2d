#pragma once

#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A clip was moved.
struct ClipMoveFinishedEventArgs : ClipMoveEventArgs
{
    /// As ClipMoveEventArgs.
    using ClipMoveEventArgs::ClipMoveEventArgs;

    bool operator==(ClipMoveFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
