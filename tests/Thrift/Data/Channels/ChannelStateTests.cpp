#include "tests/Thrift/Data/Channels/Values.h"

#include "records/Channels.h"
#include "tests/Thrift/Converters.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <utility>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Channels;
using namespace Corvane::Data::Channels;
using TimePoints::TimeCode;
using TimePoints::TimePoint;

using OnAir = Converters<PlayerClipOnAirToThriftConverter, ThriftToPlayerClipOnAirConverter>;
using Player = Converters<PlayerStateToThriftConverter, ThriftToPlayerStateConverter>;
using Recorder = Converters<RecorderStateToThriftConverter, ThriftToRecorderStateConverter>;

// Bare() returns a state without the fields that may be absent on the wire.

PlayerClipOnAir Bare(PlayerClipOnAir clip)
{
    clip.hasClipOnAir = false;
    clip.curTimePointOnAir = TimePoint::Empty();
    clip.todCurTimecodeOnAir = clip.userCurTimecodeOnAir = TimeCode::Empty();
    return clip;
}

PlayerState Bare(PlayerState state)
{
    state.playoutConfig = PlayoutConfig::Undefined;
    state.commonSpeedDenominator = 0; // a speed needs both halves
    state.curVideoSpeedNumerator = 0;
    state.pgmOnAir = Bare(state.pgmOnAir);
    state.previewOnAir = Bare(state.previewOnAir);
    state.pgmInTimePointOnAir = state.pgmShortInTimePointOnAir = TimePoint::Empty();
    state.pgmShortOutTimePointOnAir = state.pgmOutTimePointOnAir = TimePoint::Empty();
    state.todPgmInTimecodeOnAir = state.todPgmShortInTimecodeOnAir = TimeCode::Empty();
    state.todPgmShortOutTimecodeOnAir = state.todPgmOutTimecodeOnAir = TimeCode::Empty();
    state.userPgmInTimecodeOnAir = state.userPgmShortInTimecodeOnAir = TimeCode::Empty();
    state.userPgmShortOutTimecodeOnAir = state.userPgmOutTimecodeOnAir = TimeCode::Empty();
    state.globalLoopMode = PlayingLoopMode::Unknown;
    return state;
}

TEST(PlayerStateConversion, SpeedIsWrittenOnlyAsAPair)
{
    auto state = Bare(FullPlayerState()); // one half of each speed is 0
    for (auto const half : {0, 1})
    {
        auto const isset = Player::Sent(state).infoOnAir.__isset;
        EXPECT_FALSE(isset.commonSpeedNumerator || isset.commonSpeedDenominator) << half;
        EXPECT_FALSE(isset.curVideoSpeedNumerator || isset.curVideoSpeedDenominator) << half;
        std::swap(state.commonSpeedNumerator, state.commonSpeedDenominator);
        std::swap(state.curVideoSpeedNumerator, state.curVideoSpeedDenominator);
    }
}

TEST(ChannelStateConversion, UnknownNumberIsWrittenAsZero)
{
    PlayerState player;
    player.playoutConfig = static_cast<PlayoutConfig>(99);
    player.globalLoopMode = static_cast<PlayingLoopMode>(99);
    auto const wirePlayer = Player::Sent(player, Player::Sent(FullPlayerState()));
    EXPECT_EQ(wirePlayer.infoOnAir.playoutConfig, 0);
    EXPECT_EQ(wirePlayer.globalLoopMode, 0);
    EXPECT_TRUE(Player::Sent(player).infoOnAir.__isset.playoutConfig && Player::Sent(player).__isset.globalLoopMode);

    RecorderState recorder;
    recorder.primaryTimecodeType = static_cast<Corvane::Data::Clips::PrimaryTimecode>(99);
    EXPECT_EQ(Recorder::Sent(recorder, Recorder::Sent(FullRecorderState())).primaryTimecodeType, 0);
    EXPECT_TRUE(Recorder::Sent(recorder).__isset.primaryTimecodeType);
}

TEST(PlayerStateConversion, InfoOnAirOverwritesRegardlessOfItsFlags)
{
    Generated::PlayerState wire;
    wire.__isset.infoOnAir = true;
    auto& info = wire.infoOnAir;
    info.playoutConfig = Generated::PlayoutConfig::Mix;
    info.mode = Generated::PlayerModeType::Idle;
    info.commonSpeedNumerator = info.curVideoSpeedDenominator = 9;
    info.audioPgmInstructionDecSpeedD = -0x10003;
    info.limitUserOut = 77;
    info.__isset.commonSpeedDenominator = info.__isset.curVideoSpeedNumerator = true; // one half of a speed is ignored

    auto expected = FullPlayerState();
    expected.onAirStatus = PlayerModeStatus::Idle;
    expected.onAirMode = PlayerModeType::Idle;
    expected.audioPgmInstruction = 0;
    expected.audioPgmInstructionDecSpeedD = 0xFFFD;
    expected.fieldPgm = expected.fieldPgmAudio = expected.fieldPreview = 0;
    expected.curFieldInProtect = expected.curFieldOutProtect = 0;
    expected.limitIn = expected.limitOut = expected.limitUserIn = 0;
    expected.limitUserOut = 77;
    EXPECT_EQ(Player::Received(wire, FullPlayerState()), expected);

    info.__isset = {};
    info.__isset.commonSpeedNumerator = info.__isset.curVideoSpeedDenominator = true; // and so is the other half
    EXPECT_EQ(Player::Received(wire, FullPlayerState()), expected);

    info.__isset.commonSpeedDenominator = info.__isset.playoutConfig = true;
    expected.commonSpeedNumerator = 9;
    expected.commonSpeedDenominator = 0; // a 0 on the wire is accepted
    expected.playoutConfig = PlayoutConfig::Mix;
    EXPECT_EQ(Player::Received(wire, FullPlayerState()), expected);
}

TEST(PlayerStateConversion, BadClipStopsTheConversion)
{
    auto wire = Player::Sent(FullPlayerState());
    auto const before = Bare(FullPlayerState()); // equal to the sent state before the clips, except the speeds
    for (bool const inPreview : {false, true})
    {
        auto expected = before;
        expected.playoutConfig = FullPlayerState().playoutConfig;
        expected.commonSpeedDenominator = FullPlayerState().commonSpeedDenominator;
        expected.curVideoSpeedNumerator = FullPlayerState().curVideoSpeedNumerator;
        if (inPreview) expected.pgmOnAir = FullPlayerState().pgmOnAir;
        auto bad = wire;
        (inPreview ? bad.previewOnAir : bad.pgmOnAir).clipOnAir.__set_inBoundTodTimecode("2024-01-01T00:00:00:00@25");
        auto state = before;
        EXPECT_EQ(Player::Told(bad, state), "In Bound TOD Timecode Rate inconsistent with Clip Rate");
        EXPECT_EQ(state, expected);
    }
}

TEST(RecorderStateConversion, RemainingIsAtMostTotal)
{
    constexpr std::int64_t Absent = -99;
    struct Row
    {
        char const* rule;
        std::int64_t remaining, total;
        std::uint32_t remainingAfter, totalAfter;
    };
    Row const rows[] = {
        {"remaining raises total", 150, Absent, 150, 150},
        {"remaining below total leaves it", 30, Absent, 30, 100},
        {"total lowers remaining", Absent, 30, 30, 30},
        {"total above remaining leaves it", Absent, 50, 40, 50},
        {"with both, total decides", 150, 100, 100, 100},
        {"with both, total decides upwards too", 20, 300, 20, 300},
        {"high word of remaining is lost before the clamp", 0x100000000, Absent, 0, 100},
        {"high word of total is lost before the clamp", Absent, 0x100000000, 0, 0},
        {"remaining is unsigned", -1, Absent, 0xFFFFFFFF, 0xFFFFFFFF},
        {"total is unsigned", Absent, 0x80000000, 40, 0x80000000},
        {"both are unsigned", 0x80000000, 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF},
    };
    for (auto const& row : rows)
    {
        Generated::RecorderState wire;
        wire.remainingCapacity = row.remaining;
        wire.totalCapacity = row.total;
        wire.__isset.remainingCapacity = row.remaining != Absent;
        wire.__isset.totalCapacity = row.total != Absent;
        RecorderState expected, state;
        state.remainingCapacity = 40;
        state.totalCapacity = 100;
        expected.remainingCapacity = row.remainingAfter;
        expected.totalCapacity = row.totalAfter;
        EXPECT_EQ(Recorder::Received(wire, state), expected) << row.rule;
    }
}

TEST(ChannelStateConversion, NamesAreTruncatedAndHighWordsAreLost)
{
    auto const expect = []<typename TConverters>(TConverters)
    {
        typename TConverters::Wire wire;
        wire.serial = -1;
        wire.name = "A name of more than 24 bytes";
        wire.__isset.serial = wire.__isset.name = true;
        auto state = TConverters::Received(wire);
        EXPECT_EQ(state.serial, 0xFFFFFFFF);
        EXPECT_EQ(std::string(state.name.begin(), state.name.end()), std::string("A name of more than 24 b\0", 25));

        wire.serial = 0x1'0000'0007;
        wire.name = std::string("Up to\0here", 10);
        state = TConverters::Received(wire, state);
        EXPECT_EQ(state.serial, 7u);
        EXPECT_EQ(std::string(state.name.begin(), state.name.end()), wire.name + std::string(15, '\0'));
        EXPECT_EQ(TConverters::Sent(state, wire).name, "Up to");
    };
    expect(Player());
    expect(Recorder());
}

} // namespace
} // namespace Talvo::Tests
