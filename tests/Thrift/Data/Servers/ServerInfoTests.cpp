#include "tests/Thrift/Data/Servers/Values.h"

#include "Thrift/Data/Servers/FromServerInfo.h"
#include "Thrift/Data/Servers/ToServerInfo.h"
#include "generated/ServerInfo_types.h"
#include "tests/Thrift/Converters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Servers;
using Corvane::Data::Servers::IpAddress;
using Corvane::Data::Servers::ServerChassis;
using Corvane::Data::Servers::ServerInfo;
using testing::ElementsAre;

using Info = Converters<ServerInfoToThriftConverter, ThriftToServerInfoConverter>;

/// Reads into a full destination. The result must hold nothing that was not on the wire.
ServerInfo Received(Generated::ServerInfo const& wire, std::string const& failure = {})
{
    auto info = FullServerInfo();
    EXPECT_EQ(Info::Told(wire, info), failure);
    return info;
}

TEST(ServerInfoConversion, AddressesAreFourOctetsMostSignificantFirst)
{
    struct Row
    {
        IpAddress octets;
        std::int32_t number;
    };
    for (auto const& [octets, number] : {
             Row{{192, 168, 1, 2}, static_cast<std::int32_t>(0xC0A80102)},
             Row{{255, 255, 255, 255}, -1},
             Row{{128, 0, 0, 0}, std::numeric_limits<std::int32_t>::min()},
             Row{{127, 255, 255, 255}, std::numeric_limits<std::int32_t>::max()},
             Row{{0, 0, 0, 1}, 1},
         })
    {
        ServerInfo info;
        info.kronoIpAddress = octets;
        info.gbeIpAddressPair = {octets, {1, 2, 3, 4}};
        info.hasNoGbeAddresses = false;
        auto const wire = Info::Sent(info);
        EXPECT_EQ(wire.kronoIpAddress, number);
        EXPECT_THAT(wire.gbeIpAddresses, ElementsAre(number, 0x01020304));
        EXPECT_EQ(Received(wire), info);
    }
}

TEST(ServerInfoConversion, ChassisOutsideOneToEighteenIsNone)
{
    for (auto const number : {1, 2, 17, 18, 0, -1, 19, 65537, std::numeric_limits<std::int32_t>::min(),
                              std::numeric_limits<std::int32_t>::max()})
    {
        auto const expected = number >= 1 && number <= 18 ? number : 0;
        ServerInfo info;
        info.serverChassis = static_cast<ServerChassis>(number);
        auto wire = Info::Sent(info);
        EXPECT_EQ(wire.serverChassis, expected);
        wire.serverChassis = static_cast<Generated::ServerChassis::type>(number);
        EXPECT_EQ(Received(wire).serverChassis, static_cast<ServerChassis>(expected));
    }
}

TEST(ServerInfoConversion, TextsAreTruncatedAndTerminated)
{
    Generated::ServerInfo wire;
    wire.corvaneVersion = std::string(40, 'v');
    wire.hardwareRevision = std::string(17, 'r');
    wire.hostName = std::string(1'000'000, 'h');
    wire.__isset.corvaneVersion = wire.__isset.hardwareRevision = wire.__isset.hostName = true;
    ServerInfo expected;
    SetText(expected.corvaneVersion, std::string(32, 'v'));
    SetText(expected.hardwareRevision, std::string(16, 'r'));
    SetText(expected.hostName, std::string(254, 'h'));
    EXPECT_EQ(Received(wire), expected);

    wire.corvaneVersion = std::string("1\0"
                                      "2",
                                      3);
    wire.hardwareRevision = wire.hostName = "";
    expected = {};
    SetText(expected.corvaneVersion, wire.corvaneVersion);
    EXPECT_EQ(Received(wire), expected);
    EXPECT_EQ(Info::Sent(expected).corvaneVersion, "1");
}

TEST(ServerInfoConversion, NeedsTwoAddressesOrNone)
{
    for (auto const count : {1u, 3u, 4u, 1'000'000u})
    {
        auto wire = Info::Sent(FullServerInfo());
        wire.gbeIpAddresses.assign(count, 0x01020304);
        auto expected = FullServerInfo(); // only the fields before the addresses are applied
        expected.gbeIpAddressPair = {};
        expected.hasNoGbeAddresses = true;
        expected.isLocal = false;
        EXPECT_EQ(Received(wire, "Invalid GBE IP address count."), expected) << count;
    }
}

} // namespace
} // namespace Talvo::Tests
