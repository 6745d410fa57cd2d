#pragma once

#include "Domain/CorvaneData/Servers/ServerId.h"

namespace Talvo::Corvane::Notification
{

/// Event: a server was removed.
struct ServerRemovedEventArgs
{
    Data::Servers::ServerId serverId = Data::Servers::ServerId::None();

    bool operator==(ServerRemovedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
