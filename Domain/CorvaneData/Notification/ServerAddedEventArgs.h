#pragma once

#include "Domain/CorvaneData/Notification/ServerStatusEventArgs.h"
#include "Domain/CorvaneData/Servers/ServerId.h"
#include "Domain/CorvaneData/Servers/ServerInfo.h"

namespace Talvo::Corvane::Notification
{

/// Event: a server was added.
struct ServerAddedEventArgs : ServerStatusEventArgs
{
    /// Constructs the event from any values.
    ServerAddedEventArgs(Data::Servers::ServerId id, Data::Servers::ServerInfo const& info)
        : serverId(id)
        , serverInfo(info)
    {
    }

    bool operator==(ServerAddedEventArgs const&) const = default;

    Data::Servers::ServerId serverId;
    Data::Servers::ServerInfo serverInfo; ///< has its own identifier, which may differ
};

} // namespace Talvo::Corvane::Notification
