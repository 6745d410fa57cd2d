#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group is being updated.
struct AnglesGroupUpdateEventArgs : ClipCommandEventArgs
{
    /// Constructs the event; the other numbers of the clip command block are 0, and its source is `Unknown`.
    AnglesGroupUpdateEventArgs(long long revision, Data::Guid const& guid,
                               Data::Clips::Groups::AnglesGroup const& value)
        : ClipCommandEventArgs(0, RequestSource::Unknown, 0, 0, guid, revision)
        , anglesGroup(value)
    {
    }

    bool operator==(AnglesGroupUpdateEventArgs const&) const = default;

    Data::Clips::Groups::AnglesGroup anglesGroup;
};

} // namespace Talvo::Corvane::Notification
