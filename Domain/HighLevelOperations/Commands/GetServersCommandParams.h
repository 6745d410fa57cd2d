#pragma once

#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the descriptions of servers.
struct GetServersCommandParams : CommandParams
{
    /// The servers that are requested. The numbers are those of the wire.
    enum class ServerRange : std::int32_t
    {
        Local = 0,
        Remote = 1,
        LocalAndRemote = 2
    };

    bool operator==(GetServersCommandParams const&) const = default;

    ServerRange serverRange = ServerRange::Local;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
