#pragma once

#include "Domain/CorvaneData/Notification/ClipUpdateEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip was updated.
struct ClipUpdateFinishedEventArgs : ClipUpdateEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then the event's own field, then those of ClipUpdateEventArgs.
    ClipUpdateFinishedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                unsigned short ticket, Data::Guid const& guid, long long revision, bool endOfGrowing,
                                Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip)
        : ClipUpdateEventArgs(machineSerialNumber, source, number, ticket, guid, revision, firstClip, secondClip)
        , endOfGrowingClipCreation(endOfGrowing)
    {
    }

    bool operator==(ClipUpdateFinishedEventArgs const&) const = default;

    bool endOfGrowingClipCreation; ///< whether the clip has stopped growing
};

} // namespace Talvo::Corvane::Notification
