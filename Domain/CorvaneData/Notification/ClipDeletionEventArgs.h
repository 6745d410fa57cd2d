#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// A clip is being deleted.
struct ClipDeletionEventArgs : ClipCommandEventArgs
{
    /// The block of ClipCommandEventArgs, then the own fields in their order.
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
    std::uint8_t reservedByteA; ///< stays in the process, as the next one
    std::uint8_t reservedByteB;
};

} // namespace Talvo::Corvane::Notification
