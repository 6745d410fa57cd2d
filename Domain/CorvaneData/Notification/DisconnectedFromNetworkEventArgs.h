#pragma once

#include "Domain/CorvaneData/Servers/ServerId.h"

namespace Talvo::Corvane::Notification
{

/// Event: a server was disconnected from the network.
struct DisconnectedFromNetworkEventArgs
{
    Data::Servers::ServerId serverId = Data::Servers::ServerId::None();

    bool operator==(DisconnectedFromNetworkEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
