#pragma once

#include "Domain/CorvaneData/Notification/ServerStatusEventArgs.h"
#include "Domain/CorvaneData/Servers/ServerId.h"
#include "Domain/CorvaneData/Servers/ServerInfo.h"

namespace Talvo::Corvane::Notification
{

/// A server was added.
struct ServerAddedEventArgs : ServerStatusEventArgs
{
    /// Takes any values.
    ServerAddedEventArgs(Data::Servers::ServerId id, Data::Servers::ServerInfo const& info)
        : serverId(id)
        , serverInfo(info)
    {
    }

    bool operator==(ServerAddedEventArgs const&) const = default;

    Data::Servers::ServerId serverId;
    Data::Servers::ServerInfo serverInfo; ///< has an identifier of its own, which need not agree
};

} // namespace Talvo::Corvane::Notification
