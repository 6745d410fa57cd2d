#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupUpdateEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// An angles group was changed.
struct AnglesGroupUpdateFinishedEventArgs : AnglesGroupUpdateEventArgs
{
    using AnglesGroupUpdateEventArgs::AnglesGroupUpdateEventArgs;

    bool operator==(AnglesGroupUpdateFinishedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
