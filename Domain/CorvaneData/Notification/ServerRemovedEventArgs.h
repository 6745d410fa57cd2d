#pragma once

#include "Domain/CorvaneData/Servers/ServerId.h"

namespace Talvo::Corvane::Notification
{

/// A server was removed.
struct ServerRemovedEventArgs
{
    Data::Servers::ServerId serverId = Data::Servers::ServerId::None();

    bool operator==(ServerRemovedEventArgs const&) const = default;
};

} // namespace Talvo::Corvane::Notification
