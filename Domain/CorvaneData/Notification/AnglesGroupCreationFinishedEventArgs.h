#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// An angles group was made.
struct AnglesGroupCreationFinishedEventArgs : AnglesGroupCreationEventArgs
{
    using AnglesGroupCreationEventArgs::AnglesGroupCreationEventArgs;

    bool operator==(AnglesGroupCreationFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
