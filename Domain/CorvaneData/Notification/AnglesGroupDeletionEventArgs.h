#pragma once

#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group is being deleted.
struct AnglesGroupDeletionEventArgs : ClipCommandEventArgs
{
    /// Constructs the event; the other numbers of the clip command block are 0, and its source is `Unknown`.
    AnglesGroupDeletionEventArgs(long long revision, Data::Guid const& guid, Data::Clips::Groups::Guid const& value)
        : ClipCommandEventArgs(0, RequestSource::Unknown, 0, 0, guid, revision)
        , anglesGroupId(value)
    {
    }

    bool operator==(AnglesGroupDeletionEventArgs const&) const = default;

    Data::Clips::Groups::Guid anglesGroupId;
};

} // namespace Talvo::Corvane::Notification
