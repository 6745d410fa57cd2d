#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group was created.
struct AnglesGroupCreationFinishedEventArgs : AnglesGroupCreationEventArgs
{
    using AnglesGroupCreationEventArgs::AnglesGroupCreationEventArgs;

    bool operator==(AnglesGroupCreationFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
