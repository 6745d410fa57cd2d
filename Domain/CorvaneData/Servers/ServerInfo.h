#pragma once

#include "Domain/CorvaneData/Servers/Enums.h"
#include "Domain/CorvaneData/Servers/ServerId.h"

#include <array>
#include <cstdint>

namespace Talvo::Corvane::Data::Servers
{

/// The four octets of an IPv4 address, the most significant first, each 0 to 255.
using IpAddress = std::array<std::int32_t, 4>;

/// The description of a server.
struct ServerInfo
{
    ServerId serverId = ServerId::None();
    std::int32_t userNumber = 0;
    std::array<char, 33> corvaneVersion{}; ///< up to 32 characters, then zero
    ServerChassis serverChassis = ServerChassis::None;
    std::array<char, 17> hardwareRevision{}; ///< up to 16 characters, then zero
    std::array<char, 255> hostName{};        ///< up to 254 characters, then zero
    IpAddress kronoIpAddress{};
    std::array<IpAddress, 2> gbeIpAddressPair{};
    bool hasNoGbeAddresses = true; ///< whether `gbeIpAddressPair` is invalid
    bool isLocal = false;

    bool operator==(ServerInfo const&) const = default;
};

} // namespace Talvo::Corvane::Data::Servers
