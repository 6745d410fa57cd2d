#pragma once

#include "Domain/CorvaneData/Notification/MassClipDeletionEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: the clips of a machine could not be deleted.
struct MassClipDeletionFailedEventArgs : MassClipDeletionEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then result and internal result, then the field of
    /// MassClipDeletionEventArgs.
    MassClipDeletionFailedEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                                    unsigned short ticket, Data::Guid const& guid, long long revision,
                                    Data::OperationResult operationResult, short internal, unsigned int serial)
        : MassClipDeletionEventArgs(machineSerialNumber, source, number, ticket, guid, revision, serial)
        , result(operationResult)
        , internalResult(internal)
    {
    }

    bool operator==(MassClipDeletionFailedEventArgs const&) const = default;

    Data::OperationResult result;
    std::int16_t internalResult;
};

} // namespace Talvo::Corvane::Notification
