#pragma once

#include "Domain/CorvaneData/Notification/ClipUpdateEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: a clip could not be updated.
struct ClipUpdateFailedEventArgs : ClipUpdateEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then result and internal result, then the fields of
    /// ClipUpdateEventArgs.
    ClipUpdateFailedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                              unsigned short ticket, Data::Guid const& guid, long long revision,
                              Data::OperationResult operationResult, short internal, Data::Clips::Clip const& firstClip,
                              Data::Clips::Clip const& secondClip)
        : ClipUpdateEventArgs(machineSerialNumber, source, number, ticket, guid, revision, firstClip, secondClip)
        , result(operationResult)
        , internalResult(internal)
    {
    }

    bool operator==(ClipUpdateFailedEventArgs const&) const = default;

    Data::OperationResult result;
    std::int16_t internalResult;
};

} // namespace Talvo::Corvane::Notification
