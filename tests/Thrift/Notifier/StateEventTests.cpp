#include "tests/Thrift/Notifier/Values.h"

#include "records/Notifier.h"
#include "tests/Thrift/Data/Channels/Values.h"
#include "tests/Thrift/Data/Servers/Values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;
using namespace Corvane::Notification;
using Corvane::Data::Clips::RecordingRange;
using Corvane::Data::Servers::ServerId;
using Corvane::Data::Servers::ServerInfo;
using Channel = Corvane::Data::Channels::Guid;

struct Player : Converters<PlayerStateChangedEventArgsToThriftConverter, ThriftToPlayerStateChangedEventArgsConverter>
{
    static constexpr auto Type = Channel::Type::ChannelGuidTypePlayer;
    static auto State() { return FullPlayerState(); }
    static auto& Clip(Wire& wire)
    {
        wire.status.pgmOnAir.__isset.clipOnAir = true;
        return wire.status.pgmOnAir.clipOnAir;
    }
};

struct Recorder
    : Converters<RecorderStateChangedEventArgsToThriftConverter, ThriftToRecorderStateChangedEventArgsConverter>
{
    static constexpr auto Type = Channel::Type::ChannelGuidTypeRecorder;
    static auto State() { return FullRecorderState(); }
    static auto& Clip(Wire& wire) { return wire.status.recorderTrain; }
};

template<typename TChannel>
class StateChangedConversion : public testing::Test
{
protected:
    using Domain = typename TChannel::Domain;

    Domain const full{Channel(TChannel::Type, -5, 0xFFFFFFFE), 0x40, TChannel::State()};
    Domain const held{Channel(TChannel::Type, 6, 7), 8, {}};

    static typename TChannel::Wire Sent(Domain const& event) { return TChannel::Sent(event); }
};
using Channels = testing::Types<Player, Recorder>;
TYPED_TEST_SUITE(StateChangedConversion, Channels, );

TYPED_TEST(StateChangedConversion, NeedsACompleteIdentifier)
{
    auto wire = this->Sent(this->full);
    wire.__isset.channelSerial = false;
    auto expected = this->full;
    expected.channelGuid = this->held.channelGuid;
    EXPECT_EQ(TypeParam::Received(wire, this->held), expected);
}

TYPED_TEST(StateChangedConversion, DropsTheFailureOfItsState)
{
    auto wire = this->Sent(this->full);
    wire.channelSerial = 0x100000005;
    wire.status.__isset = {};
    auto expected = this->full;
    expected.channelGuid = Channel(TypeParam::Type, -5, 5);
    EXPECT_EQ(TypeParam::Received(wire, this->full), expected);
}

using Ranges =
    Converters<RecordingRangesChangedEventArgsToThriftConverter, ThriftToRecordingRangesChangedEventArgsConverter>;

RecordingRange RangeTo(std::int64_t const timepoint)
{
    return {{1}, {timepoint}, ParsedTimeCode("2001-01-01T01:02:03:04@25"), ParsedTimeCode("2001-01-01T01:02:04:05@25")};
}

RecordingRangesChangedEventArgs FullRanges()
{
    RecordingRangesChangedEventArgs event;
    event.recorderId = Id<Channel>('r');
    event.recordingRanges = {RangeTo(2), RangeTo(3)};
    event.isInBoundMoving = true;
    return event;
}

RecordingRangesChangedEventArgs HeldRanges()
{
    RecordingRangesChangedEventArgs event;
    event.recorderId = Id<Channel>('h');
    event.recordingRanges = {RangeTo(4)};
    event.isOutBoundMoving = true;
    return event;
}

TEST(RecordingRangesChangedConversion, FlagOfTheRangesDependsOnTheRangesOfAUsedRecord)
{
    auto empty = FullRanges();
    empty.recordingRanges.clear();
    auto wire = Ranges::Sent(empty);
    wire.__isset.recordingRanges = true;
    EXPECT_FALSE(Ranges::Sent(empty, wire).__isset.recordingRanges);
    wire = Ranges::Sent(FullRanges());
    wire.__isset.recordingRanges = false;
    EXPECT_TRUE(Ranges::Sent(empty, wire).__isset.recordingRanges);
}

TEST(RecordingRangesChangedConversion, ReplacesTheDestinationEvenIfItFails)
{
    auto wire = Ranges::Sent(FullRanges());
    wire.__isset = {}; // the flags of the two booleans are ignored
    auto event = HeldRanges();
    EXPECT_EQ(Ranges::Told(wire, event), "RecordingRangesChanged is empty");
    auto expected = FullRanges();
    expected.recorderId = Channel();
    expected.recordingRanges.clear();
    EXPECT_EQ(event, expected);

    Ranges::Wire onlyEmptyList;
    onlyEmptyList.__isset.recordingRanges = true;
    EXPECT_EQ(Ranges::Received(onlyEmptyList, HeldRanges()), RecordingRangesChangedEventArgs());
}

TEST(RecordingRangesChangedConversion, BadRangeBecomesEmpty)
{
    auto wire = Ranges::Sent(FullRanges());
    wire.recordingRanges[0].inBoundTimecode = "noon";
    wire.recordingRanges.emplace_back();
    EXPECT_THAT(Ranges::Received(wire, HeldRanges()).recordingRanges,
                testing::ElementsAre(RecordingRange(), RangeTo(3), RecordingRange()));
}

using Added = Converters<ServerAddedEventArgsToThriftConverter, ThriftToServerAddedEventArgsConverter>;

TEST(ServerAddedConversion, MissingOrBadFieldsKeepTheDestination)
{
    ServerAddedEventArgs const held(ServerId(3), ServerInfo());
    auto const full = Added::Sent({ServerId(9), FullServerInfo()});
    auto const expectRefused = [&held](Added::Wire const& wire, char const* const message)
    {
        auto event = held;
        EXPECT_EQ(Added::Told(wire, event), message);
        EXPECT_EQ(event, held);
    };
    auto wire = full;
    wire.__isset.serverInfo = false;
    expectRefused(wire, "Missing serverInfo");
    wire.__isset.serverId = false;
    expectRefused(wire, "Missing serverId");
    wire = full;
    wire.serverInfo.gbeIpAddresses.pop_back();
    expectRefused(wire, "Invalid GBE IP address count.");
    wire.serverInfo = {};
    expectRefused(wire, "ServerInfo is empty");
}

} // namespace
} // namespace Talvo::Tests
