#pragma once

#include "Domain/CorvaneData/Notification/CommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// What became of a command on clips: the block that all events of clips begin with.
struct ClipCommandEventArgs : CommandEventArgs
{
    /// Where the command came from.
    enum class RequestSource : std::int32_t
    {
        Local = 0,
        Network = 1,
        Unknown = 2
    };

    /// `subCommandIndex` is 0.
    ClipCommandEventArgs(unsigned int machineSerial, RequestSource source, unsigned int number, unsigned short ticket,
                         Data::Guid const& guid, long long revision)
        : CommandEventArgs(guid)
        , localMachineSerial(machineSerial)
        , requestSource(source)
        , operationNumber(number)
        , userTicket(ticket)
        , databaseRevision(revision)
    {
    }

    bool operator==(ClipCommandEventArgs const&) const = default;

    std::uint32_t localMachineSerial;
    RequestSource requestSource;
    std::uint32_t operationNumber;
    std::uint16_t userTicket;
    std::int32_t subCommandIndex = 0;
    std::int64_t databaseRevision;
};

} // namespace Talvo::Corvane::Notification
