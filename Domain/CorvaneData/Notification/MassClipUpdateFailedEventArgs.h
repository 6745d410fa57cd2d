#pragma once

#include "Domain/CorvaneData/Notification/MassClipUpdateEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: the clips of a machine could not be updated.
struct MassClipUpdateFailedEventArgs : MassClipUpdateEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then result and internal result, then the field of
    /// MassClipUpdateEventArgs.
    MassClipUpdateFailedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                  unsigned short ticket, Data::Guid const& guid, long long revision,
                                  Data::OperationResult operationResult, short internal, unsigned int serial)
        : MassClipUpdateEventArgs(machineSerialNumber, source, number, ticket, guid, revision, serial)
        , result(operationResult)
        , internalResult(internal)
    {
    }

    bool operator==(MassClipUpdateFailedEventArgs const&) const = default;

    Data::OperationResult result;
    std::int16_t internalResult;
};

} // namespace Talvo::Corvane::Notification
