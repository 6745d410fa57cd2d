#pragma once

#include "Domain/CorvaneData/Notification/ClipDeletionEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: a clip could not be deleted.
struct ClipDeletionFailedEventArgs : ClipDeletionEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then result and internal result, the fields of ClipDeletionEventArgs,
    /// and the event's own three.
    ClipDeletionFailedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                unsigned short ticket, Data::Guid const& guid, long long revision,
                                Data::OperationResult operationResult, short internal, Data::Clips::Clip const& clip,
                                unsigned char byteA, unsigned char byteB, unsigned char essences, bool isFromUCode,
                                bool isForcedForPlaylist)
        : ClipDeletionEventArgs(machineSerialNumber, source, number, ticket, guid, revision, clip, byteA, byteB)
        , result(operationResult)
        , internalResult(internal)
        , essenceBitmap(essences)
        , fromUCode(isFromUCode)
        , forceForPlaylist(isForcedForPlaylist)
    {
    }

    bool operator==(ClipDeletionFailedEventArgs const&) const = default;

    Data::OperationResult result;
    std::int16_t internalResult;
    std::uint8_t essenceBitmap;
    bool fromUCode;
    bool forceForPlaylist;
};

} // namespace Talvo::Corvane::Notification
