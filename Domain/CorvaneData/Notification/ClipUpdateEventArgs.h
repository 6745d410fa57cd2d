#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip is being updated.
struct ClipUpdateEventArgs : ClipCommandEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then the event's own fields in their order.
    ClipUpdateEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                        unsigned short ticket, Data::Guid const& guid, long long revision,
                        Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip)
        : ClipCommandEventArgs(machineSerialNumber, source, number, ticket, guid, revision)
        , oldClip(firstClip)
        , newClip(secondClip)
    {
    }

    bool operator==(ClipUpdateEventArgs const&) const = default;

    Data::Clips::Clip oldClip;
    Data::Clips::Clip newClip;
};

} // namespace Talvo::Corvane::Notification
