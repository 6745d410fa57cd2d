#pragma once

#include "Domain/CorvaneData/Notification/CommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// The common base of all clip events: the clip command block, which describes the command.
struct ClipCommandEventArgs : CommandEventArgs
{
    /// The origin of the command.
    enum class RequestSource : std::int32_t
    {
        Local = 0,
        Network = 1,
        Unknown = 2
    };

    /// Constructs the block; `subCommandIndex` is 0.
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
