#pragma once

#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "tests/Thrift/Data/Clips/Values.h"

#include <string>

namespace Talvo::Tests
{

/// Returns a server in which no field has its default.
inline Corvane::Data::Servers::ServerInfo FullServerInfo()
{
    using namespace Corvane::Data::Servers;
    ServerInfo info;
    info.serverId = ServerId(-7);
    info.userNumber = -8;
    SetText(info.corvaneVersion, "A version text of 32 bytes, full");
    info.serverChassis = ServerChassis::WessaPro;
    SetText(info.hardwareRevision, "16 bytes of text");
    SetText(info.hostName, std::string(254, 'h'));
    info.kronoIpAddress = {192, 168, 1, 2};
    info.gbeIpAddressPair = {{{10, 0, 0, 1}, {255, 254, 253, 252}}};
    info.hasNoGbeAddresses = false;
    info.isLocal = true;
    return info;
}

} // namespace Talvo::Tests
