#include "tests/Thrift/Commands/Values.h"

#include "records/Commands.h"
#include "tests/Thrift/Data/Channels/Values.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <list>
#include <string>
#include <tuple>
#include <utility>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::Channels::PlayerState;
using Corvane::Data::Channels::RecorderState;
using Corvane::Data::Clips::Clip;
using Corvane::Data::Clips::Groups::AnglesGroup;

using ChannelGuid = Corvane::Data::Channels::Guid;
using GroupGuid = Corvane::Data::Clips::Groups::Guid;

using Servers = Converters<GetServersCommandParamsToThriftConverter, ThriftToGetServersCommandParamsConverter>;
using Playlists = Converters<GetPlaylistsCommandParamsToThriftConverter, ThriftToGetPlaylistsCommandParamsConverter>;
using ClipsReply = Converters<GetClipsCommandReplyToThriftConverter, ThriftToGetClipsCommandReplyConverter>;
using GroupsReply =
    Converters<GetAnglesGroupsCommandReplyToThriftConverter, ThriftToGetAnglesGroupsCommandReplyConverter>;
using ChannelsReply = Converters<GetChannelsCommandReplyToThriftConverter, GetChannelsCommandReplyFromThriftConverter>;

TEST(QueryParamsConversion, UnknownNumbersBecomeAKnownNumber)
{
    using Range = GetServersCommandParams::ServerRange;
    using Mode = GetPlaylistsCommandParams::ElementMode;
    GetServersCommandParams servers;
    GetPlaylistsCommandParams playlists;
    for (auto const& [number, range, mode] : {std::tuple(0, 0, 0), {1, 1, 1}, {2, 2, 2}, {7, 2, 1}, {-1, 2, 1}})
    {
        servers.serverRange = static_cast<Range>(number);
        playlists.elementMode = static_cast<Mode>(number);
        auto wireServers = Servers::Sent(servers);
        auto wirePlaylists = Playlists::Sent(playlists);
        EXPECT_EQ(wireServers.serverRange, range);
        EXPECT_EQ(wirePlaylists.elementMode, mode);
        wireServers.serverRange = static_cast<Generated::ServerRange::type>(number);
        wirePlaylists.elementMode = static_cast<Generated::ElementConversionMode::type>(number);
        EXPECT_EQ(static_cast<int>(Servers::Received(wireServers).serverRange), range);
        EXPECT_EQ(static_cast<int>(Playlists::Received(wirePlaylists).elementMode), mode);
    }
}

TEST(QueryReplyConversion, CursorsAreNotRewound)
{
    constexpr std::int64_t Revision = 0x100000007;
    Clip first, second;
    SetText(first.umId, "FIRST");
    SetText(second.umId, "SECOND");
    GetClipsCommandReply const clips(Id('c'), Revision, std::list<Clip>{first, second});
    ASSERT_TRUE(clips.MoveNext());
    auto const rest = ClipsReply::Sent(clips);
    ASSERT_EQ(rest.clips.size(), 1u);
    EXPECT_EQ(rest.clips[0].umId, "SECOND");
    EXPECT_FALSE(clips.MoveNext());
    auto const nothing = ClipsReply::Sent(clips);
    EXPECT_FALSE(nothing.__isset.clips);
    EXPECT_EQ(nothing.revision, Revision);

    GetAnglesGroupsCommandReply const groups(
        Id('c'), Revision, std::list<AnglesGroup>{AnglesGroup(Id<GroupGuid>('g')), AnglesGroup(Id<GroupGuid>('h'))});
    ASSERT_TRUE(groups.MoveNext());
    auto const restOfGroups = GroupsReply::Sent(groups);
    ASSERT_EQ(restOfGroups.groups.size(), 1u);
    EXPECT_EQ(restOfGroups.groups[0].id.value, std::string(16, 'h'));
    EXPECT_FALSE(groups.MoveNext());
}

GetChannelsCommandReply FullChannels()
{
    GetChannelsCommandReply reply;
    reply.commandGuid = Id('c');
    reply.players = {{Id<ChannelGuid>('a'), FullPlayerState()}, {Id<ChannelGuid>('b'), FullPlayerState()}};
    reply.players.at(Id<ChannelGuid>('b')).serial = 9;
    reply.recorders = {{Id<ChannelGuid>('a'), FullRecorderState()}, {Id<ChannelGuid>('r'), FullRecorderState()}};
    reply.recorders.at(Id<ChannelGuid>('r')).serial = 8;
    return reply;
}

TEST(GetChannelsReplyConversion, WritingReplacesEntriesAndReadingKeepsTheLastKeyOfAChannel)
{
    auto wire = ChannelsReply::Sent(FullChannels());
    auto other = FullChannels();
    std::swap(other.players.at(Id<ChannelGuid>('a')), other.players.at(Id<ChannelGuid>('b')));
    std::swap(other.recorders.at(Id<ChannelGuid>('a')), other.recorders.at(Id<ChannelGuid>('r')));
    EXPECT_EQ(ChannelsReply::Sent(FullChannels(), ChannelsReply::Sent(other)), wire);

    auto const longer = WireId(std::string(17, 'a'));
    wire.players[longer] = wire.players.at(WireId(std::string(16, 'b')));
    wire.recorders[longer] = wire.recorders.at(WireId(std::string(16, 'r')));
    auto expected = FullChannels();
    expected.players.at(Id<ChannelGuid>('a')).serial = 9;
    expected.recorders.at(Id<ChannelGuid>('a')).serial = 8;
    EXPECT_EQ(ChannelsReply::Received(wire), expected);

    wire.players[longer] = {}; // a state that fails is new, and does not keep that of the same channel
    wire.recorders[longer] = {};
    expected.players.at(Id<ChannelGuid>('a')) = PlayerState();
    expected.recorders.at(Id<ChannelGuid>('a')) = RecorderState();
    EXPECT_EQ(ChannelsReply::Received(wire), expected);
}

} // namespace
} // namespace Talvo::Tests
