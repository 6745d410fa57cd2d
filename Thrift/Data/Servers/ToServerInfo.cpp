#include "Thrift/Data/Servers/ToServerInfo.h"

#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Texts.h"
#include "generated/ServerInfo_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
{

using namespace Detail;
using Corvane::Data::Servers::IpAddress;
using Corvane::Data::Servers::ServerChassis;

namespace
{

/// Unpacks an address; the most significant byte is the first octet.
IpAddress Octets(std::int32_t const address) noexcept
{
    auto const bits = static_cast<std::uint32_t>(address);
    return {static_cast<std::uint8_t>(bits >> 24), static_cast<std::uint8_t>(bits >> 16),
            static_cast<std::uint8_t>(bits >> 8), static_cast<std::uint8_t>(bits)};
}

/// Converts a chassis by number. Numbers outside 1 to 18 become 0.
ServerChassis Chassis(Generated::ServerChassis::type const number) noexcept
{
    return static_cast<ServerChassis>(number >= 1 && number <= 18 ? number : 0);
}

} // namespace

ConversionResult ThriftToServerInfoConverter::To(Generated::ServerInfo const& source,
                                                 Corvane::Data::Servers::ServerInfo& destination) const noexcept
{
    auto const& isset = source.__isset;
    SeenFields seen;

    destination = {};
    if (seen(isset.serverId)) destination.serverId = Corvane::Data::Servers::ServerId(source.serverId);
    if (seen(isset.userNumber)) destination.userNumber = source.userNumber;
    if (seen(isset.corvaneVersion)) AssignBounded(destination.corvaneVersion, source.corvaneVersion);
    if (seen(isset.serverChassis)) destination.serverChassis = Chassis(source.serverChassis);
    if (seen(isset.hardwareRevision)) AssignBounded(destination.hardwareRevision, source.hardwareRevision);
    if (seen(isset.hostName)) AssignBounded(destination.hostName, source.hostName);
    if (seen(isset.kronoIpAddress)) destination.kronoIpAddress = Octets(source.kronoIpAddress);
    if (seen(isset.gbeIpAddresses && !source.gbeIpAddresses.empty()))
    {
        if (source.gbeIpAddresses.size() != 2) return Failure("Invalid GBE IP address count.");
        destination.gbeIpAddressPair = {Octets(source.gbeIpAddresses[0]), Octets(source.gbeIpAddresses[1])};
        destination.hasNoGbeAddresses = false;
    }
    if (seen(isset.isLocal)) destination.isLocal = source.isLocal;
    return seen.None() ? Failure("ServerInfo is empty") : Success();
}

ConversionResult ThriftToServerInfoConverter::To(Generated::ServerInfo&& source,
                                                 Corvane::Data::Servers::ServerInfo& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
