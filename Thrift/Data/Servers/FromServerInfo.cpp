#include "Thrift/Data/Servers/FromServerInfo.h"

#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Texts.h"
#include "generated/ServerInfo_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
{

using namespace Detail;

namespace
{

/// Packs an address; the first octet is the most significant byte.
std::int32_t Address(Corvane::Data::Servers::IpAddress const& octets) noexcept
{
    std::uint32_t address = 0;
    for (auto const octet : octets) address = address << 8 | static_cast<std::uint32_t>(octet);
    return static_cast<std::int32_t>(address);
}

/// Converts a chassis by number. Numbers outside 1 to 18 become 0.
Generated::ServerChassis::type Chassis(Corvane::Data::Servers::ServerChassis const chassis) noexcept
{
    auto const number = static_cast<std::int32_t>(chassis);
    return static_cast<Generated::ServerChassis::type>(number >= 1 && number <= 18 ? number : 0);
}

} // namespace

ConversionResult ServerInfoToThriftConverter::To(Corvane::Data::Servers::ServerInfo const& source,
                                                 Generated::ServerInfo& destination) const noexcept
{
    TALVO_FLAGGED(destination, serverId) = source.serverId.Value();
    TALVO_FLAGGED(destination, userNumber) = source.userNumber;
    if (source.corvaneVersion[0] != 0) TALVO_FLAGGED(destination, corvaneVersion) = UntilNul(source.corvaneVersion);
    TALVO_FLAGGED(destination, serverChassis) = Chassis(source.serverChassis);
    if (source.hardwareRevision[0] != 0)
        TALVO_FLAGGED(destination, hardwareRevision) = UntilNul(source.hardwareRevision);
    if (source.hostName[0] != 0) TALVO_FLAGGED(destination, hostName) = UntilNul(source.hostName);
    TALVO_FLAGGED(destination, kronoIpAddress) = Address(source.kronoIpAddress);
    if (!source.hasNoGbeAddresses)
    {
        // Appended: addresses that the destination already holds stay in front.
        auto const& [first, second] = source.gbeIpAddressPair;
        destination.gbeIpAddresses.insert(destination.gbeIpAddresses.end(), {Address(first), Address(second)});
        destination.__isset.gbeIpAddresses = true;
    }
    TALVO_FLAGGED(destination, isLocal) = source.isLocal;
    return Success();
}

ConversionResult ServerInfoToThriftConverter::To(Corvane::Data::Servers::ServerInfo&& source,
                                                 Generated::ServerInfo& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
