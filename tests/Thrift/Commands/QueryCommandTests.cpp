#include "tests/Thrift/Commands/Values.h"

#include "records/Commands.h"
#include "tests/Thrift/Data/Channels/Values.h"
#include "tests/Thrift/Data/Sequences/Values.h"
#include "tests/Thrift/Data/Servers/Values.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::Guid;
using Corvane::Data::Channels::PlayerState;
using Corvane::Data::Channels::RecorderState;
using Corvane::Data::Clips::Clip;
using Corvane::Data::Clips::Groups::AnglesGroup;
using Corvane::Data::Sequences::Playlist;
using Corvane::Data::Servers::ServerInfo;
using TimePoints::TimeCode;

using ChannelGuid = Corvane::Data::Channels::Guid;
using GroupGuid = Corvane::Data::Clips::Groups::Guid;

using Servers = Converters<GetServersCommandParamsToThriftConverter, ThriftToGetServersCommandParamsConverter>;
using Playlists = Converters<GetPlaylistsCommandParamsToThriftConverter, ThriftToGetPlaylistsCommandParamsConverter>;
using ClipsReply = Converters<GetClipsCommandReplyToThriftConverter, ThriftToGetClipsCommandReplyConverter>;
using GroupsReply =
    Converters<GetAnglesGroupsCommandReplyToThriftConverter, ThriftToGetAnglesGroupsCommandReplyConverter>;
using TrainsReply = Converters<GetTrainsCommandReplyToThriftConverter, ThriftToGetTrainsCommandReplyConverter>;
using ServersReply = Converters<GetServersCommandReplyToThriftConverter, ThriftToGetServersCommandReplyConverter>;
using PlaylistsReply = Converters<GetPlaylistsCommandReplyToThriftConverter, ThriftToGetPlaylistsCommandReplyConverter>;
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

// Shown() returns the contents of a reply: its identifier, its revision if it has one, and its items. If the reply has
// a cursor, only the items after the cursor.

auto Shown(GetClipsCommandReply const& reply)
{
    std::vector<Clip> clips;
    for (auto const copy = reply; copy.MoveNext();) clips.push_back(copy.CurrentClip());
    return std::tuple(reply.commandGuid, reply.revision, clips);
}

auto Shown(GetAnglesGroupsCommandReply const& reply)
{
    std::vector<AnglesGroup> groups;
    for (auto const copy = reply; copy.MoveNext();) groups.push_back(copy.CurrentAnglesGroup());
    return std::tuple(reply.commandGuid, reply.revision, groups);
}

auto Shown(GetTrainsCommandReply const& reply)
{
    std::vector<std::tuple<bool, Clip, bool, bool, TimeCode>> trains;
    for (auto const& train : reply.trains)
    {
        bool const hasClip = train.trainClip != nullptr;
        trains.emplace_back(hasClip, hasClip ? *train.trainClip : Clip(), train.isInMoving, train.isOutMoving,
                            train.lastKnownTimeCode);
    }
    return std::tuple(reply.commandGuid, reply.dbRevision, trains);
}

auto Shown(GetServersCommandReply const& reply)
{
    return std::tuple(reply.commandGuid, std::int64_t{}, reply.servers);
}

auto Shown(GetPlaylistsCommandReply const& reply)
{
    return std::tuple(reply.commandGuid, reply.revision, reply.playlists);
}

std::int64_t const Revision = 0x100000007;

GetClipsCommandReply FullClips(std::size_t const count = 2)
{
    std::list<Clip> clips(count, NestedClip());
    if (count > 1) SetText(clips.back().umId, "SECOND");
    return {Id('c'), Revision, std::move(clips)};
}

GetAnglesGroupsCommandReply FullGroups(std::size_t const count = 2)
{
    std::list<AnglesGroup> groups(count, AnglesGroup(Id<GroupGuid>('g')));
    if (count > 1) groups.back() = AnglesGroup(Id<GroupGuid>('h'));
    return {Id('c'), Revision, std::move(groups)};
}

GetTrainsCommandReply FullTrains(std::size_t const count = 2)
{
    GetTrainsCommandReply reply;
    reply.commandGuid = Id('c');
    reply.dbRevision = Revision;
    for (std::size_t i = 0; i < count; ++i)
        reply.trains.emplace_back(std::make_unique<Clip>(NestedClip()),
                                  std::vector<Corvane::Data::Clips::RecordingRange>(), i == 0, true,
                                  ParsedTimeCode("2001-01-01T00:00:00:00@25"));
    return reply;
}

GetServersCommandReply FullServers(std::size_t const count = 2)
{
    GetServersCommandReply reply;
    reply.commandGuid = Id('c');
    reply.servers.assign(count, FullServerInfo());
    if (count > 1) reply.servers[1].userNumber = 9;
    return reply;
}

GetPlaylistsCommandReply FullPlaylists(std::size_t const count = 2)
{
    std::vector<Playlist> playlists(count, FullPlaylist());
    if (count > 1) playlists[1].umId = SomeUmId("SECOND");
    return {Id('c'), Revision, std::move(playlists)};
}

/// Checks that a rejected record without a list replaces the reply, and that an empty list is accepted.
template<typename TConverters>
void ExpectReplaced(typename TConverters::Wire const& wire, auto const& make, std::string const& failure,
                    auto const flag)
{
    auto reply = make();
    EXPECT_EQ(TConverters::Told(wire, reply), failure);
    auto const& [guid, revision, items] = Shown(reply);
    EXPECT_EQ(guid, Guid::Empty());
    EXPECT_TRUE(items.empty());
    auto listed = wire;
    flag(listed.__isset);
    EXPECT_EQ(TConverters::Told(listed, reply), "");
}

TEST(QueryReplyConversion, RejectedRecordReplacesTheReplyAndAnEmptyListIsAccepted)
{
    ExpectReplaced<ClipsReply>(
        {}, [] { return FullClips(); }, "GetClipsCommandReply is empty", [](auto& isset) { isset.clips = true; });
    ExpectReplaced<GroupsReply>(
        {}, [] { return FullGroups(); }, "GetAnglesGroupsCommandReply is empty",
        [](auto& isset) { isset.groups = true; });
    ExpectReplaced<TrainsReply>(
        {}, [] { return FullTrains(); }, "GetTrainsCommandReply is empty", [](auto& isset) { isset.trains = true; });
    ExpectReplaced<ServersReply>(
        {}, [] { return FullServers(); }, "GetServersCommandReply is empty", [](auto& isset) { isset.servers = true; });
    ExpectReplaced<PlaylistsReply>(
        {}, [] { return FullPlaylists(); }, "GetPlaylistsCommandReply is empty",
        [](auto& isset) { isset.playlists = true; });

    // The revision of a rejected record is read, and that of trains regardless of its flag.
    Generated::GetClipsCommandReply clips;
    clips.__set_revision(Revision);
    clips.__isset.revision = true;
    auto reply = FullClips();
    EXPECT_EQ(ClipsReply::Told(clips, reply), "GetClipsCommandReply is empty");
    EXPECT_EQ(reply.revision, Revision);
    Generated::GetTrainsCommandReply trains;
    trains.dbRevision = Revision;
    trains.__isset.trains = true;
    EXPECT_EQ(TrainsReply::Received(trains, FullTrains()).dbRevision, Revision);
}

TEST(QueryReplyConversion, CursorsAreNotRewound)
{
    auto const clips = FullClips();
    ASSERT_TRUE(clips.MoveNext());
    auto const wire = ClipsReply::Sent(FullClips());
    EXPECT_EQ(ClipsReply::Sent(clips).clips, decltype(wire.clips){wire.clips[1]});
    EXPECT_FALSE(clips.MoveNext());
    auto const nothing = ClipsReply::Sent(clips);
    EXPECT_FALSE(nothing.__isset.clips);
    EXPECT_EQ(nothing.revision, Revision);

    auto const groups = FullGroups();
    ASSERT_TRUE(groups.MoveNext());
    auto const restOfGroups = GroupsReply::Sent(groups);
    ASSERT_EQ(restOfGroups.groups.size(), 1u);
    EXPECT_EQ(restOfGroups.groups[0].id.value, std::string(16, 'h'));
    EXPECT_FALSE(groups.MoveNext());
}

TEST(QueryReplyConversion, ItemsOfClipsAndTrainsMayFailAndThoseOfServersAndPlaylistsMayNot)
{
    auto wireClips = ClipsReply::Sent(FullClips());
    wireClips.clips[0] = {};
    EXPECT_EQ(std::get<2>(Shown(ClipsReply::Received(wireClips, FullClips()))).front(), Clip());

    auto wireTrains = TrainsReply::Sent(FullTrains());
    wireTrains.trains[0] = {};
    wireTrains.trains[1].trainData = {};
    auto const trains = TrainsReply::Received(std::move(wireTrains), FullTrains());
    ASSERT_EQ(trains.trains.size(), 2u);
    for (auto const& train : trains.trains)
    {
        EXPECT_EQ(train.trainClip, nullptr);
        EXPECT_FALSE(train.isInMoving || train.isOutMoving);
        EXPECT_EQ(train.lastKnownTimeCode, TimeCode::Empty());
    }

    auto wireServers = ServersReply::Sent(FullServers());
    auto servers = FullServers(1);
    wireServers.servers[1].gbeIpAddresses.pop_back();
    EXPECT_EQ(ServersReply::Told(wireServers, servers), "Invalid GBE IP address count.");
    wireServers.servers[1] = {};
    EXPECT_EQ(ServersReply::Told(wireServers, servers), "ServerInfo is empty");
    EXPECT_EQ(servers, FullServers(1));

    auto wirePlaylists = PlaylistsReply::Sent(FullPlaylists());
    wirePlaylists.playlists[1] = {};
    auto playlists = FullPlaylists(1);
    EXPECT_EQ(PlaylistsReply::Told(wirePlaylists, playlists), "Playlist is empty");
    EXPECT_EQ(playlists, FullPlaylists(1));
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

TEST(GetChannelsReplyConversion, IgnoresFlagsAndReplacesEntries)
{
    auto const wire = ChannelsReply::Sent(FullChannels());
    EXPECT_EQ(ChannelsReply::Received(WithoutFlags(wire)), FullChannels());
    auto other = FullChannels();
    std::swap(other.players.at(Id<ChannelGuid>('a')), other.players.at(Id<ChannelGuid>('b')));
    std::swap(other.recorders.at(Id<ChannelGuid>('a')), other.recorders.at(Id<ChannelGuid>('r')));
    EXPECT_EQ(ChannelsReply::Sent(FullChannels(), ChannelsReply::Sent(other)), wire); // existing entries are replaced
}

TEST(GetChannelsReplyConversion, LastKeyOfAChannelIsKeptAndStatesMayFail)
{
    auto wire = ChannelsReply::Sent(FullChannels());
    auto const longer = WireId(std::string(17, 'a'));
    wire.players[longer] = wire.players.at(WireId(std::string(16, 'b')));
    wire.recorders[longer] = wire.recorders.at(WireId(std::string(16, 'r')));
    auto expected = FullChannels();
    expected.players.at(Id<ChannelGuid>('a')).serial = 9;
    expected.recorders.at(Id<ChannelGuid>('a')).serial = 8;
    EXPECT_EQ(ChannelsReply::Received(wire), expected);

    wire.players[longer] = {};
    wire.recorders[longer] = {};
    expected.players.at(Id<ChannelGuid>('a')) = PlayerState();
    expected.recorders.at(Id<ChannelGuid>('a')) = RecorderState();
    EXPECT_EQ(ChannelsReply::Received(wire), expected);
}

} // namespace
} // namespace Talvo::Tests
