#pragma once

#include "Domain/CorvaneData/Notification/ClipUpdateEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// A clip was changed.
struct ClipUpdateFinishedEventArgs : ClipUpdateEventArgs
{
    /// The block of ClipCommandEventArgs, then the own field, then those of ClipUpdateEventArgs.
    ClipUpdateFinishedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                unsigned short ticket, Data::Guid const& guid, long long revision, bool endOfGrowing,
                                Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip)
        : ClipUpdateEventArgs(machineSerialNumber, source, number, ticket, guid, revision, firstClip, secondClip)
        , endOfGrowingClipCreation(endOfGrowing)
    {
    }

    bool operator==(ClipUpdateFinishedEventArgs const&) const = default;

    bool endOfGrowingClipCreation; ///< the clip has stopped growing
};

} // namespace Talvo::Corvane::Notification
