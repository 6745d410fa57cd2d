#pragma once

#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: all clips of a machine were updated.
struct MassClipUpdateEventArgs : ClipCommandEventArgs
{
    /// Takes the fields of ClipCommandEventArgs, then the event's own field.
    MassClipUpdateEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                            unsigned short ticket, Data::Guid const& guid, long long revision, unsigned int serial)
        : ClipCommandEventArgs(machineSerialNumber, source, number, ticket, guid, revision)
        , machineSerial(serial)
    {
    }

    bool operator==(MassClipUpdateEventArgs const&) const = default;

    std::uint32_t machineSerial;
};

} // namespace Talvo::Corvane::Notification
