#pragma once

#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip was moved.
struct ClipMoveFinishedEventArgs : ClipMoveEventArgs
{
    /// Takes the same arguments as ClipMoveEventArgs.
    using ClipMoveEventArgs::ClipMoveEventArgs;

    bool operator==(ClipMoveFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
