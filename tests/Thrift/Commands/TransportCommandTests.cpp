#include "tests/Thrift/Commands/Values.h"
#include "tools/records/Commands.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::Channels::Boundary;
using TimePoints::TimePoint;

using ChannelGuid = Corvane::Data::Channels::Guid;
using ClipGuid = Corvane::Data::Clips::Guid;
using SequenceGuid = Corvane::Data::Sequences::Guid;

using Play = Converters<PlayCommandParamsToThriftConverter, ThriftToPlayCommandParamsConverter>;
using Dial = Converters<DialCommandParamsToThriftConverter, ThriftToDialCommandParamsConverter>;
using Step = Converters<StepCommandParamsToThriftConverter, ThriftToStepCommandParamsConverter>;
using GoIdle = Converters<GoIdleCommandParamsToThriftConverter, ThriftToGoIdleCommandParamsConverter>;
using Start = Converters<StartRecordingCommandParamsToThriftConverter, ThriftToStartRecordingCommandParamsConverter>;
using Stop = Converters<StopRecordingCommandParamsToThriftConverter, ThriftToStopRecordingCommandParamsConverter>;
using Sync = Converters<SyncCommandParamsToThriftConverter, ThriftToSyncCommandParamsConverter>;
using Chain = Converters<ChainCommandParamsToThriftConverter, ThriftToChainCommandParamsConverter>;
using Live = Converters<LiveCommandParamsToThriftConverter, ThriftToLiveCommandParamsConverter>;
using LoadClips = Converters<LoadClipsCommandParamsToThriftConverter, ThriftToLoadClipsCommandParamsConverter>;
using LoadSequences =
    Converters<LoadSequencesCommandParamsToThriftConverter, ThriftToLoadSequencesCommandParamsConverter>;
using SetBoundaries =
    Converters<SetLoadBoundariesCommandParamsToThriftConverter, ThriftToSetLoadBoundariesCommandParamsConverter>;

Boundary const Absolute = Boundary::AbsoluteBoundary({-21});
Boundary const Relative = Boundary::RelativeBoundary(Boundary::RelativeTo::RelativeToOppositeClipBoundary, 7);
char const* const WireBoundaries =
    "inBoundary=LoadBoundary(type=0, specializedLoadBoundary=SpecializedLoadBoundary("
    "absoluteLoadBoundary=AbsoluteLoadBoundary(timepoint=-21), relativeLoadBoundary=<null>)), "
    "outBoundary=LoadBoundary(type=2, specializedLoadBoundary=SpecializedLoadBoundary("
    "absoluteLoadBoundary=<null>, relativeLoadBoundary=RelativeLoadBoundary(fieldCount=7)))";

auto const HasPlayers = [](auto const& wire) { return bool(wire.__isset.players); };
auto const HasRecorders = [](auto const& wire) { return bool(wire.__isset.recorders); };
auto const HasParameters = [](auto const& wire) { return bool(wire.__isset.playersParameters); };

/// Parameters with an identifier that can go through JSON, and nothing else.
template<typename TParams>
TParams New()
{
    TParams params;
    params.commandGuid = Id('c');
    return params;
}

/// The set of a record, `full` holding the channels a and b: its flag tells whether there is any, both directions only
/// add, a clear flag empties.
template<typename TConverters>
void ExpectSet(typename TConverters::Domain const& full, auto const set, auto const wireSet, auto const isFlagged)
{
    auto other = full;
    other.*set = {Id<ChannelGuid>('b'), Id<ChannelGuid>('o')};
    auto none = full;
    (none.*set).clear();
    auto wire = TConverters::Sent(full);
    EXPECT_TRUE(isFlagged(wire));
    EXPECT_FALSE(isFlagged(TConverters::Sent(none)));
    EXPECT_EQ((TConverters::Sent(other, wire).*wireSet).size(), 3u);

    auto united = full;
    (united.*set).insert(Id<ChannelGuid>('o'));
    EXPECT_EQ(TConverters::Received(wire, other).*set, united.*set);
    EXPECT_TRUE((TConverters::Received(WithoutFlags(wire), full).*set).empty());
    (wire.*wireSet).clear();
    EXPECT_EQ(TConverters::Received(wire, full), full);

    // Identifiers of a wrong size are cut or filled, and may so become the same.
    for (auto const size : {0u, 15u, 16u, 17u, 1'000'000u}) (wire.*wireSet).insert(WireId(std::string(size, 'k')));
    EXPECT_EQ((wire.*wireSet).size(), 5u);
    EXPECT_EQ((TConverters::Received(wire, none).*set).size(), 3u);
    EXPECT_TRUE((TConverters::Received(wire, none).*set).contains(Id<ChannelGuid>('k')));

    // No limit on their number.
    (wire.*wireSet).clear();
    for (char fill = 'a'; fill < 'a' + 13; ++fill) (wire.*wireSet).insert(WireId(std::string(16, fill)));
    EXPECT_EQ((TConverters::Received(wire, none).*set).size(), 13u);
}

/// The map of a record, `full` holding two different entries of the channels a and b: the same, and a channel that is there
/// keeps its value coming in and takes the new one going out.
template<typename TConverters>
void ExpectMap(typename TConverters::Domain const& full, auto const map, auto const wireMap, auto const isFlagged)
{
    auto const a = Id<ChannelGuid>('a');
    auto const b = Id<ChannelGuid>('b');
    auto swapped = full;
    std::swap((swapped.*map).at(a), (swapped.*map).at(b));
    ASSERT_NE((swapped.*map).at(a), (full.*map).at(a));
    auto none = full;
    (none.*map).clear();
    auto wire = TConverters::Sent(full);
    EXPECT_TRUE(isFlagged(wire));
    EXPECT_FALSE(isFlagged(TConverters::Sent(none)));
    EXPECT_EQ(TConverters::Sent(full, TConverters::Sent(swapped)), wire);

    EXPECT_EQ(TConverters::Received(wire, swapped).*map, swapped.*map);
    EXPECT_EQ(TConverters::Received(wire, none).*map, full.*map);
    EXPECT_TRUE((TConverters::Received(WithoutFlags(wire), full).*map).empty());

    // Of keys that become the same channel the first counts, in the order of their bytes, the shorter first.
    auto entries = wire.*wireMap;
    (wire.*wireMap).clear();
    EXPECT_EQ(TConverters::Received(wire, full).*map, full.*map);
    (wire.*wireMap)[WireId(std::string(17, 'a'))] = entries[WireId(std::string(16, 'b'))];
    (wire.*wireMap)[WireId(std::string(1'000'000, 'a'))] = entries[WireId(std::string(16, 'b'))];
    (wire.*wireMap)[WireId(std::string(16, 'a'))] = entries[WireId(std::string(16, 'a'))];
    (wire.*wireMap)[WireId("")] = entries[WireId(std::string(16, 'b'))];
    auto const collapsed = TConverters::Received(wire, none).*map;
    EXPECT_EQ(collapsed.size(), 2u);
    EXPECT_EQ(collapsed.at(a), (full.*map).at(a));
}

PlayCommandParams FullPlay()
{
    auto params = New<PlayCommandParams>();
    params.players = {Id<ChannelGuid>('b'), Id<ChannelGuid>('a')};
    params.speedNumerator = -1;
    params.speedDenominator = 2;
    return params;
}

TEST(PlayConversion, PlayersAndIdentifier)
{
    ExpectParams<Play>(FullPlay(), New<PlayCommandParams>());
    ExpectSet<Play>(FullPlay(), &PlayCommandParams::players, &Generated::PlayCommandParams::players, HasPlayers);
    auto const wire = Play::Sent(FullPlay());
    EXPECT_TRUE(wire.__isset.commandId && wire.__isset.speedNum && wire.__isset.speedDen);
    EXPECT_EQ(Printed(wire), "PlayCommandParams(commandId=Guid(value=cccccccccccccccc), "
                             "players={Guid(value=aaaaaaaaaaaaaaaa), Guid(value=bbbbbbbbbbbbbbbb)}, "
                             "speedNum=-1, speedDen=2)");
}

TEST(PlayConversion, SpeedTravelsAsAPairWithoutZeroAndComesInWithoutAZeroDenominator)
{
    auto const expectSpeed = [](std::int32_t const num, std::int32_t const den, bool const isSent)
    {
        auto params = FullPlay();
        params.speedNumerator = num;
        params.speedDenominator = den;
        auto const wire = Play::Sent(params);
        EXPECT_EQ(wire.__isset.speedNum, isSent);
        EXPECT_EQ(wire.__isset.speedDen, isSent);
        auto const received = Play::Received(wire, FullPlay());
        EXPECT_EQ(received.speedNumerator, isSent ? num : 0);
        EXPECT_EQ(received.speedDenominator, isSent ? den : 1);
    };
    expectSpeed(-3, 4, true);
    expectSpeed(3, -4, true);
    expectSpeed(0, 1, false);
    expectSpeed(0, 4, false);
    expectSpeed(2, 0, false);

    auto const expectReceived = [](bool const hasNum, bool const hasDen, std::int32_t const den, std::int32_t const num,
                                   std::int32_t const expectedNum, std::int32_t const expectedDen)
    {
        Generated::PlayCommandParams wire;
        wire.speedNum = num;
        wire.speedDen = den;
        wire.__isset.speedNum = hasNum;
        wire.__isset.speedDen = hasDen;
        auto const received = Play::Received(wire, FullPlay());
        EXPECT_EQ(received.speedNumerator, expectedNum);
        EXPECT_EQ(received.speedDenominator, expectedDen);
    };
    expectReceived(true, true, 4, 0, 0, 4); // a numerator of 0 is taken
    expectReceived(true, true, 0, 3, 0, 1);
    expectReceived(true, false, 4, 3, 0, 1);
    expectReceived(false, true, 4, 3, 0, 1);
}

/// Dial, Step and GoIdle: players and one value, that travels without its flag both ways.
template<typename TConverters>
void ExpectPlayersAndValue(auto const value, auto const held, auto const field, auto const wireField,
                           auto const isFlagged)
{
    using Domain = typename TConverters::Domain;
    auto full = New<Domain>();
    full.players = {Id<ChannelGuid>('a'), Id<ChannelGuid>('b')};
    full.*field = value;
    auto bare = New<Domain>();
    bare.*field = value;
    ExpectParams<TConverters>(full, bare);
    ExpectSet<TConverters>(full, &Domain::players, &TConverters::Wire::players, HasPlayers);
    for (auto const& params : {full, bare})
    {
        EXPECT_EQ(TConverters::Sent(params).*wireField, value);
        EXPECT_FALSE(isFlagged(TConverters::Sent(params)));
    }
    auto other = full;
    other.*field = held;
    EXPECT_EQ(TConverters::Received(TConverters::Sent(full), other).*field, value);
}

TEST(PlayersAndValueConversion, ValueTravelsWithoutItsFlag)
{
    ExpectPlayersAndValue<Dial>(-5, 6, &DialCommandParams::velocity, &Generated::DialCommandParams::velocity,
                                [](auto const& wire) { return bool(wire.__isset.velocity); });
    ExpectPlayersAndValue<Step>(-5, 6, &StepCommandParams::fieldCount, &Generated::StepCommandParams::fieldCount,
                                [](auto const& wire) { return bool(wire.__isset.fieldCount); });
    ExpectPlayersAndValue<GoIdle>(true, false, &GoIdleCommandParams::setBlackScreen,
                                  &Generated::GoIdleCommandParams::setBlackScreen,
                                  [](auto const& wire) { return bool(wire.__isset.setBlackScreen); });
}

TEST(RecorderConversion, SetOfRecorders)
{
    auto start = New<StartCommandParams>();
    start.recorders = {Id<ChannelGuid>('a'), Id<ChannelGuid>('b')};
    ExpectParams<Start>(start, New<StartCommandParams>());
    ExpectSet<Start>(start, &StartCommandParams::recorders, &Generated::StartRecordingCommandParams::recorders,
                     HasRecorders);

    auto stop = New<StopCommandParams>();
    stop.recorders = {Id<ChannelGuid>('a'), Id<ChannelGuid>('b')};
    ExpectParams<Stop>(stop, New<StopCommandParams>());
    ExpectSet<Stop>(stop, &StopCommandParams::recorders, &Generated::StopRecordingCommandParams::recorders,
                    HasRecorders);
}

TEST(SyncConversion, SourceAndBoundariesNeedTheirFlags)
{
    auto full = New<SyncCommandParams>();
    full.players = {Id<ChannelGuid>('a'), Id<ChannelGuid>('b')};
    full.sourcePlayer = Id<ChannelGuid>('s');
    full.inBoundary = Absolute;
    full.outBoundary = Relative;
    auto kept = full;
    kept.players.clear();
    ExpectParams<Sync>(full, New<SyncCommandParams>(), kept);
    ExpectSet<Sync>(full, &SyncCommandParams::players, &Generated::SyncCommandParams::players, HasPlayers);

    auto wire = Sync::Sent(full);
    auto const& isset = wire.__isset;
    EXPECT_TRUE(isset.sourcePlayer && isset.inBoundary && isset.outBoundary);
    EXPECT_EQ(Printed(wire), "SyncCommandParams(commandGuid=Guid(value=cccccccccccccccc), "
                             "sourcePlayer=Guid(value=ssssssssssssssss), "
                             "players={Guid(value=aaaaaaaaaaaaaaaa), Guid(value=bbbbbbbbbbbbbbbb)}, " +
                                 std::string(WireBoundaries) + ")");
    wire.inBoundary = wire.outBoundary = {}; // refused, which is not looked at
    EXPECT_EQ(Sync::Received(wire, full), full);
}

TEST(ChainConversion, TimePointAndBoundariesNeedTheirFlags)
{
    auto full = New<ChainCommandParams>();
    full.players = {{Id<ChannelGuid>('a'), Id<ClipGuid>('x')}, {Id<ChannelGuid>('b'), Id<ClipGuid>('y')}};
    full.timepoint = {-3};
    full.inBoundary = Absolute;
    full.outBoundary = Relative;
    auto kept = full;
    kept.players.clear();
    ExpectParams<Chain>(full, New<ChainCommandParams>(), kept);
    ExpectMap<Chain>(full, &ChainCommandParams::players, &Generated::ChainCommandParams::players, HasPlayers);

    auto wire = Chain::Sent(full);
    EXPECT_TRUE(wire.__isset.timepoint && wire.__isset.inBoundary && wire.__isset.outBoundary);
    EXPECT_EQ(Printed(wire), "ChainCommandParams(commandGuid=Guid(value=cccccccccccccccc), "
                             "players={Guid(value=aaaaaaaaaaaaaaaa): Guid(value=xxxxxxxxxxxxxxxx), "
                             "Guid(value=bbbbbbbbbbbbbbbb): Guid(value=yyyyyyyyyyyyyyyy)}, timepoint=-3, " +
                                 std::string(WireBoundaries) + ")");
    wire.inBoundary = wire.outBoundary = {}; // refused, which is not looked at
    EXPECT_EQ(Chain::Received(wire, full), full);
}

TEST(LiveConversion, WithoutPlayersTheIdentifierIsLostForANewOne)
{
    auto full = New<LiveCommandParams>();
    full.players = {{Id<ChannelGuid>('a'), Id<ChannelGuid>('x')}, {Id<ChannelGuid>('b'), Id<ChannelGuid>('y')}};
    ExpectRoundTrip<Live>(full);
    ExpectMap<Live>(full, &LiveCommandParams::players, &Generated::LiveCommandParams::players, HasPlayers);
    EXPECT_TRUE(Live::Sent(full).__isset.commandGuid);

    auto const wire = Live::Sent(New<LiveCommandParams>());
    EXPECT_EQ(wire.commandGuid, WireId(std::string(16, 'c')));
    auto const first = Live::Received(wire, full);
    auto const second = Live::Received(wire, full);
    EXPECT_NE(first.commandGuid, Id('c'));
    EXPECT_NE(first.commandGuid, second.commandGuid);
    EXPECT_NE(first.commandGuid, Corvane::Data::Guid::Empty());
    EXPECT_TRUE(first.players.empty());

    auto bare = WithoutFlags(Live::Sent(full));
    bare.__isset.players = true;
    EXPECT_EQ(Live::Received(bare), full); // with players it stays, even without its flag
}

TEST(LoadClipsConversion, OnlyTheTimePointNeedsItsFlag)
{
    auto full = New<LoadClipsCommandParams>();
    full.playersParameters = {{Id<ChannelGuid>('a'), {Id<ClipGuid>('x'), {-3}, Absolute, Relative}},
                              {Id<ChannelGuid>('b'), {Id<ClipGuid>('y'), TimePoint::Empty(), Relative, Boundary()}}};
    ExpectParams<LoadClips>(full, New<LoadClipsCommandParams>());
    ExpectMap<LoadClips>(full, &LoadClipsCommandParams::playersParameters,
                         &Generated::LoadClipsCommandParams::playersParameters, HasParameters);

    auto wire = LoadClips::Sent(full);
    auto& param = wire.playersParameters[WireId(std::string(16, 'a'))];
    EXPECT_TRUE(param.__isset.timepoint);
    EXPECT_FALSE(param.__isset.clip || param.__isset.inBoundary || param.__isset.outBoundary);
    EXPECT_EQ(Printed(param), "LoadClipCommandParam(clip=Guid(value=xxxxxxxxxxxxxxxx), timepoint=-3, " +
                                  std::string(WireBoundaries) + ")");
    param.__isset = {};
    param.outBoundary = {}; // refused: a new one
    full.playersParameters.at(Id<ChannelGuid>('a')) = {Id<ClipGuid>('x'), TimePoint::Empty(), Absolute, Boundary()};
    EXPECT_EQ(LoadClips::Received(wire), full);
}

TEST(LoadSequencesConversion, AllButTheSequenceNeedTheirFlags)
{
    auto full = New<LoadSequencesCommandParams>();
    full.playersParameters = {{Id<ChannelGuid>('a'), {Id<SequenceGuid>('x'), 0x100000001, true}},
                              {Id<ChannelGuid>('b'), {Id<SequenceGuid>('y'), -2, false}}};
    ExpectParams<LoadSequences>(full, New<LoadSequencesCommandParams>());
    ExpectMap<LoadSequences>(full, &LoadSequencesCommandParams::playersParameters,
                             &Generated::LoadSequencesCommandParams::playersParameters, HasParameters);

    auto wire = LoadSequences::Sent(full);
    auto& isset = wire.playersParameters[WireId(std::string(16, 'a'))].__isset;
    EXPECT_TRUE(isset.durationFromBeginning && isset.isForDiffusion);
    EXPECT_FALSE(isset.sequence);
    auto& param = full.playersParameters.at(Id<ChannelGuid>('a'));
    isset.durationFromBeginning = false;
    param.durationFromBeginning = 0;
    EXPECT_EQ(LoadSequences::Received(wire), full);
    isset.isForDiffusion = false;
    param.isForDiffusion = false;
    EXPECT_EQ(LoadSequences::Received(wire), full);
}

TEST(SetLoadBoundariesConversion, BoundariesNeedNoFlags)
{
    auto full = New<SetLoadBoundariesCommandParams>();
    full.playersParameters = {{Id<ChannelGuid>('a'), {Absolute, Relative}},
                              {Id<ChannelGuid>('b'), {Boundary(), Absolute}}};
    ExpectParams<SetBoundaries>(full, New<SetLoadBoundariesCommandParams>());
    ExpectMap<SetBoundaries>(full, &SetLoadBoundariesCommandParams::playersParameters,
                             &Generated::SetLoadBoundariesCommandParams::playersParameters, HasParameters);

    auto wire = SetBoundaries::Sent(full);
    auto& param = wire.playersParameters[WireId(std::string(16, 'a'))];
    EXPECT_TRUE(param.__isset.inBoundary && param.__isset.outBoundary);
    EXPECT_EQ(Printed(param), "SetLoadBoundariesCommandParam(" + std::string(WireBoundaries) + ")");
    param.__isset = {};
    param.outBoundary = {}; // refused: a new one
    full.playersParameters.at(Id<ChannelGuid>('a')).outBoundary = Boundary();
    EXPECT_EQ(SetBoundaries::Received(wire), full);
}

} // namespace
} // namespace Talvo::Tests
