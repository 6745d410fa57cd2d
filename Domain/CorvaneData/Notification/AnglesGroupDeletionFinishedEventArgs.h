#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupDeletionEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group was deleted.
struct AnglesGroupDeletionFinishedEventArgs : AnglesGroupDeletionEventArgs
{
    using AnglesGroupDeletionEventArgs::AnglesGroupDeletionEventArgs;

    bool operator==(AnglesGroupDeletionFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
