#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

namespace Talvo::Corvane::Notification
{

/// Event: a clip is being moved.
struct ClipMoveEventArgs : ClipCommandEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then the event's own fields in their order.
    ClipMoveEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                      unsigned short ticket, Data::Guid const& guid, long long revision,
                      Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip)
        : ClipCommandEventArgs(machineSerialNumber, source, number, ticket, guid, revision)
        , sourceClip(firstClip)
        , destClip(secondClip)
    {
    }

    bool operator==(ClipMoveEventArgs const&) const = default;

    Data::Clips::Clip sourceClip;
    Data::Clips::Clip destClip;
};

} // namespace Talvo::Corvane::Notification
