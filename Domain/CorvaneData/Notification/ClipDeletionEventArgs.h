#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: a clip is being deleted.
struct ClipDeletionEventArgs : ClipCommandEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then the event's own fields in their order.
    ClipDeletionEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                          unsigned short ticket, Data::Guid const& guid, long long revision,
                          Data::Clips::Clip const& clip, unsigned char byteA, unsigned char byteB)
        : ClipCommandEventArgs(machineSerialNumber, source, number, ticket, guid, revision)
        , removedClip(clip)
        , reservedByteA(byteA)
        , reservedByteB(byteB)
    {
    }

    bool operator==(ClipDeletionEventArgs const&) const = default;

    Data::Clips::Clip removedClip;
    std::uint8_t reservedByteA; ///< not sent to the wire, like the next one
    std::uint8_t reservedByteB;
};

} // namespace Talvo::Corvane::Notification
