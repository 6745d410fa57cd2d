#pragma once

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: a clip could not be created.
struct ClipCreationFailedEventArgs : ClipCreationEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then result and internal result, then the fields of
    /// ClipCreationEventArgs.
    ClipCreationFailedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                unsigned short ticket, Data::Guid const& guid, long long revision,
                                Data::OperationResult operationResult, short internal,
                                Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip,
                                CreationType creation, NetworkType network)
        : ClipCreationEventArgs(machineSerialNumber, source, number, ticket, guid, revision, firstClip, secondClip,
                                creation, network)
        , result(operationResult)
        , internalResult(internal)
    {
    }

    bool operator==(ClipCreationFailedEventArgs const&) const = default;

    Data::OperationResult result;
    std::int16_t internalResult;
};

} // namespace Talvo::Corvane::Notification
