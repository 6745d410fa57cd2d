#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: an angles group is being created.
struct AnglesGroupCreationEventArgs : ClipCommandEventArgs
{
    /// Constructs the event; the other numbers of the clip command block are 0, and its source is `Unknown`.
    AnglesGroupCreationEventArgs(long long revision, Data::Guid const& guid,
                                 Data::Clips::Groups::AnglesGroup const& value)
        : ClipCommandEventArgs(0, RequestSource::Unknown, 0, 0, guid, revision)
        , anglesGroup(value)
    {
    }

    bool operator==(AnglesGroupCreationEventArgs const&) const = default;

    Data::Clips::Groups::AnglesGroup anglesGroup;
};

} // namespace Talvo::Corvane::Notification
