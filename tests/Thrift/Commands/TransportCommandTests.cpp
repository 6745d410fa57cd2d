#include "records/Commands.h"
#include "tests/Thrift/Commands/Values.h"

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

auto const A = Id<ChannelGuid>('a');
auto const B = Id<ChannelGuid>('b');

// The sets and the maps of all transport commands are converted by the same functions.

TEST(ChannelSets, IdentifiersOfAWrongSizeMayBecomeEqualAndTheNumberIsUnlimited)
{
    Generated::DialCommandParams wire;
    wire.__isset.players = true;
    for (auto const size : {0u, 15u, 16u, 17u, 1'000'000u}) wire.players.insert(WireId(std::string(size, 'k')));
    auto const players = Dial::Received(wire).players;
    EXPECT_EQ(players.size(), 3u);
    EXPECT_TRUE(players.contains(Id<ChannelGuid>('k')));

    wire.players.clear();
    for (char fill = 'a'; fill < 'a' + 13; ++fill) wire.players.insert(WireId(std::string(16, fill)));
    EXPECT_EQ(Dial::Received(wire).players.size(), 13u);
}

TEST(ChannelSetsAndMaps, WriteAnyNumberOfChannelsToNewAndUsedRecords)
{
    DialCommandParams dial;
    ChainCommandParams chain;
    Generated::DialCommandParams usedDial;
    Generated::ChainCommandParams usedChain;
    for (int serial = 0; serial < 300; ++serial)
    {
        // The order is neither that of the hash nor that of the bytes. Some bytes are above 0x7f.
        ChannelGuid const channel(ChannelGuid::Type::ChannelGuidTypePlayer, serial % 7,
                                  static_cast<unsigned int>(serial) * 2654435761U);
        dial.players.insert(channel);
        chain.players.emplace(channel, Id<ClipGuid>(static_cast<char>('a' + serial % 20)));
        auto const wire = Dial::Sent(dial);
        usedDial = Dial::Sent(dial, usedDial);
        usedChain = Chain::Sent(chain, usedChain);
        ASSERT_EQ(wire.players.size(), dial.players.size());
        ASSERT_EQ(wire.players, usedDial.players);
        ASSERT_EQ(Dial::Received(wire).players, dial.players);
        ASSERT_EQ(Chain::Received(usedChain).players, chain.players);
        ASSERT_EQ(Chain::Sent(chain).players, usedChain.players);
    }
}

TEST(ChannelMaps, ExistingChannelIsReplacedWhenWrittenAndKeptWhenRead)
{
    ChainCommandParams full;
    full.players = {{A, Id<ClipGuid>('x')}, {B, Id<ClipGuid>('y')}};
    auto swapped = full;
    swapped.players = {{A, Id<ClipGuid>('y')}, {B, Id<ClipGuid>('x')}};
    auto wire = Chain::Sent(full);
    EXPECT_EQ(Chain::Sent(full, Chain::Sent(swapped)), wire);
    EXPECT_EQ(Chain::Received(wire, swapped).players, swapped.players);

    // Of the keys that become the same channel, the first in the order of bytes is kept. A shorter key precedes a
    // longer one.
    auto const entries = wire.players;
    wire.players.clear();
    wire.players[WireId(std::string(17, 'a'))] = entries.at(WireId(std::string(16, 'b')));
    wire.players[WireId(std::string(1'000'000, 'a'))] = entries.at(WireId(std::string(16, 'b')));
    wire.players[WireId(std::string(16, 'a'))] = entries.at(WireId(std::string(16, 'a')));
    wire.players[WireId("")] = entries.at(WireId(std::string(16, 'b')));
    auto const collapsed = Chain::Received(wire).players;
    EXPECT_EQ(collapsed.size(), 2u);
    EXPECT_EQ(collapsed.at(A), full.players.at(A));
}

TEST(PlayConversion, SpeedIsWrittenWithoutZerosAndReadWithoutAZeroDenominator)
{
    auto const expectSpeed = [](std::int32_t const num, std::int32_t const den, bool const isSent)
    {
        PlayCommandParams params;
        params.speedNumerator = num;
        params.speedDenominator = den;
        auto const wire = Play::Sent(params);
        EXPECT_EQ(wire.__isset.speedNum, isSent);
        EXPECT_EQ(wire.__isset.speedDen, isSent);
        auto const received = Play::Received(wire, params);
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
        auto const received = Play::Received(wire);
        EXPECT_EQ(received.speedNumerator, expectedNum);
        EXPECT_EQ(received.speedDenominator, expectedDen);
    };
    expectReceived(true, true, 4, 0, 0, 4); // a numerator of 0 is accepted
    expectReceived(true, true, 0, 3, 0, 1);
    expectReceived(true, false, 4, 3, 0, 1);
    expectReceived(false, true, 4, 3, 0, 1);
}

TEST(LiveConversion, WithoutPlayersANewIdentifierIsGenerated)
{
    LiveCommandParams full;
    full.commandGuid = Id('c');
    full.players = {{A, Id<ChannelGuid>('x')}, {B, Id<ChannelGuid>('y')}};
    auto bare = WithoutFlags(Live::Sent(full));
    auto const first = Live::Received(bare, full);
    auto const second = Live::Received(bare, full);
    EXPECT_NE(first.commandGuid, Id('c'));
    EXPECT_NE(first.commandGuid, second.commandGuid);
    EXPECT_NE(first.commandGuid, Corvane::Data::Guid::Empty());
    EXPECT_TRUE(first.players.empty());

    bare.__isset.players = true;
    EXPECT_EQ(Live::Received(bare), full); // with players the identifier is read, regardless of its flag
}

// These tests clear flags inside the parameters, which values read from bytes would set.

} // namespace
} // namespace Talvo::Tests
