#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupUpdateEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group was updated.
struct AnglesGroupUpdateFinishedEventArgs : AnglesGroupUpdateEventArgs
{
    using AnglesGroupUpdateEventArgs::AnglesGroupUpdateEventArgs;

    bool operator==(AnglesGroupUpdateFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
