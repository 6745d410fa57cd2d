#pragma once

#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The descriptions of servers.
struct GetServersCommandReply : CommandReply
{
    ReplyType GetType() const noexcept override { return ReplyType::GetServers; }

    /// Whether all fields are equal.
    bool operator==(GetServersCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && servers == other.servers;
    }

    std::vector<Corvane::Data::Servers::ServerInfo> servers;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
