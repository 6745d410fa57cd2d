#include "tests/Thrift/Commands/Values.h"

#include "tests/Thrift/Data/Channels/Values.h"
#include "tests/Thrift/Data/Sequences/Values.h"
#include "tests/Thrift/Data/Servers/Values.h"
#include "tools/records/Commands.h"

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
using SequenceGuid = Corvane::Data::Sequences::Guid;

using Servers = Converters<GetServersCommandParamsToThriftConverter, ThriftToGetServersCommandParamsConverter>;
using Playlists = Converters<GetPlaylistsCommandParamsToThriftConverter, ThriftToGetPlaylistsCommandParamsConverter>;
using ClipsReply = Converters<GetClipsCommandReplyToThriftConverter, ThriftToGetClipsCommandReplyConverter>;
using GroupsReply =
    Converters<GetAnglesGroupsCommandReplyToThriftConverter, ThriftToGetAnglesGroupsCommandReplyConverter>;
using TrainsReply = Converters<GetTrainsCommandReplyToThriftConverter, ThriftToGetTrainsCommandReplyConverter>;
using ServersReply = Converters<GetServersCommandReplyToThriftConverter, ThriftToGetServersCommandReplyConverter>;
using PlaylistsReply = Converters<GetPlaylistsCommandReplyToThriftConverter, ThriftToGetPlaylistsCommandReplyConverter>;
using ChannelsReply = Converters<GetChannelsCommandReplyToThriftConverter, GetChannelsCommandReplyFromThriftConverter>;

TEST(QueryParamsConversion, UnknownNumbersBecomeAKnownOneAndTheFlagsCount)
{
    using Range = GetServersCommandParams::ServerRange;
    using Mode = GetPlaylistsCommandParams::ElementMode;
    GetServersCommandParams servers, local;
    servers.commandGuid = local.commandGuid = Id('c');
    servers.serverRange = Range::Remote;
    ExpectParams<Servers>(servers, local, servers);

    GetPlaylistsCommandParams playlists, all;
    playlists.commandGuid = all.commandGuid = Id('c');
    playlists.elementMode = Mode::OnlyRelative;
    playlists.idFilter = Id<SequenceGuid>('f');
    ExpectParams<Playlists>(playlists, all, playlists);

    for (auto const& [number, range, mode] : {std::tuple(0, 0, 0), {1, 1, 1}, {2, 2, 2}, {7, 2, 1}, {-1, 2, 1}})
    {
        servers.serverRange = static_cast<Range>(number);
        playlists.elementMode = static_cast<Mode>(number);
        auto wireServers = Servers::Sent(servers);
        auto wirePlaylists = Playlists::Sent(playlists);
        EXPECT_TRUE(wireServers.__isset.serverRange && wirePlaylists.__isset.elementMode);
        EXPECT_EQ(wireServers.serverRange, range);
        EXPECT_EQ(wirePlaylists.elementMode, mode);
        wireServers.serverRange = static_cast<Generated::ServerRange::type>(number);
        wirePlaylists.elementMode = static_cast<Generated::ElementConversionMode::type>(number);
        EXPECT_EQ(static_cast<int>(Servers::Received(wireServers).serverRange), range);
        EXPECT_EQ(static_cast<int>(Playlists::Received(wirePlaylists).elementMode), mode);
    }

    auto const wire = Playlists::Sent(all, Playlists::Sent(playlists)); // no filter: its flag is cleared
    EXPECT_FALSE(wire.__isset.idFilter);
    EXPECT_EQ(Playlists::Received(wire, playlists).idFilter, Id<SequenceGuid>('f'));
}

// What a reply holds: identifier, revision where it has one, items; for replies with a cursor those behind it.

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

// Where the wire records and the replies differ in names.

auto& List(auto& wire)
{
    if constexpr (requires { wire.clips; })
        return wire.clips;
    else if constexpr (requires { wire.groups; })
        return wire.groups;
    else if constexpr (requires { wire.trains; })
        return wire.trains;
    else if constexpr (requires { wire.servers; })
        return wire.servers;
    else
        return wire.playlists;
}

/// The flags of a query reply: identifier, revision, list.
struct Flags
{
    bool guid, revision, list;
    bool operator==(Flags const&) const = default;
};

Flags FlagsOf(auto const& wire)
{
    auto const& isset = wire.__isset;
    if constexpr (requires { isset.clips; })
        return {isset.guid, isset.revision, isset.clips};
    else if constexpr (requires { isset.groups; })
        return {isset.guid, isset.revision, isset.groups};
    else if constexpr (requires { isset.trains; })
        return {isset.guid, isset.dbRevision, isset.trains};
    else if constexpr (requires { isset.servers; })
        return {isset.guid, true, isset.servers};
    else
        return {isset.guid, isset.revision, isset.playlists};
}

void SetFlags(auto& wire, Flags const& flags)
{
    auto& isset = wire.__isset;
    isset.guid = flags.guid;
    if constexpr (requires { isset.revision; }) isset.revision = flags.revision;
    if constexpr (requires { isset.dbRevision; }) isset.dbRevision = flags.revision;
    if constexpr (requires { isset.clips; }) isset.clips = flags.list;
    if constexpr (requires { isset.groups; }) isset.groups = flags.list;
    if constexpr (requires { isset.trains; }) isset.trains = flags.list;
    if constexpr (requires { isset.servers; }) isset.servers = flags.list;
    if constexpr (requires { isset.playlists; }) isset.playlists = flags.list;
}

/// What all query replies owe, and where they differ: the revision that a clear flag gives, and whether a set one counts.
template<typename TConverters>
void ExpectQueryReply(auto const& make, std::string const& name, std::int64_t const missingRevision,
                      bool const revisionCounts = false)
{
    auto const show = [](auto const& reply) { return Shown(reply); };
    auto const full = [&] { return make(2); };
    auto const none = [&] { return make(0); };
    ExpectReplyRoundTrip<TConverters>(full, show, none);
    ExpectReplyRoundTrip<TConverters>(none, show, full);
    auto const wire = TConverters::Sent(full());
    EXPECT_EQ(FlagsOf(wire), (Flags{true, true, true}));
    EXPECT_EQ(FlagsOf(TConverters::Sent(none())),
              (Flags{true, true, false})); // the list's follows whether there is any
    auto again = TConverters::Sent(full(), wire);
    ASSERT_EQ(List(again).size(), 4u);
    EXPECT_EQ(List(again)[1], List(again)[3]);

    for (bool const guid : {true, false})
        for (bool const revision : {true, false})
            for (bool const list : {true, false})
            {
                auto partial = wire;
                SetFlags(partial, {guid, revision, list});
                auto reply = make(1);
                reply.commandGuid = Id('h');
                if constexpr (requires { reply.revision; }) reply.revision = 5;
                if constexpr (requires { reply.dbRevision; }) reply.dbRevision = 5;
                bool const counts = guid || list || (revision && revisionCounts);
                EXPECT_EQ(TConverters::Told(partial, reply), counts ? "" : name + " is empty");
                auto const& [shownGuid, shownRevision, items] = Shown(reply); // replaced even by a failure
                auto const& [fullGuid, fullRevision, fullItems] = Shown(full());
                EXPECT_EQ(shownGuid, guid ? fullGuid : Guid::Empty());
                EXPECT_EQ(shownRevision, revision ? fullRevision : missingRevision);
                EXPECT_EQ(items, list ? fullItems : decltype(items){});

                List(partial).clear(); // an empty list counts as well
                auto other = make(1);
                EXPECT_EQ(TConverters::Told(partial, other), counts ? "" : name + " is empty");
            }
}

TEST(QueryReplyConversion, RoundTripAndWhatIsEmpty)
{
    ExpectQueryReply<ClipsReply>(FullClips, "GetClipsCommandReply", 0);
    ExpectQueryReply<GroupsReply>(FullGroups, "GetAnglesGroupsCommandReply", 0);
    ExpectQueryReply<TrainsReply>(FullTrains, "GetTrainsCommandReply", Revision); // taken without its flag
    ExpectQueryReply<ServersReply>(FullServers, "GetServersCommandReply", 0);     // has none
    ExpectQueryReply<PlaylistsReply>(FullPlaylists, "GetPlaylistsCommandReply", -1, true);
}

TEST(QueryReplyConversion, CursorsAreNeverRewound)
{
    auto const clips = FullClips();
    ASSERT_TRUE(clips.MoveNext());
    auto const wire = ClipsReply::Sent(FullClips());
    EXPECT_EQ(ClipsReply::Sent(clips).clips, decltype(wire.clips){wire.clips[1]});
    EXPECT_FALSE(clips.MoveNext());
    auto const nothing = ClipsReply::Sent(clips);
    EXPECT_EQ(FlagsOf(nothing), (Flags{true, true, false}));
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

TEST(GetChannelsReplyConversion, NoFlagOfTheMapsIsSetOrRead)
{
    ExpectRoundTrip<ChannelsReply>(FullChannels());
    GetChannelsCommandReply none;
    none.commandGuid = Id('c');
    ExpectRoundTrip<ChannelsReply>(none, FullChannels());

    auto const wire = ChannelsReply::Sent(FullChannels());
    EXPECT_TRUE(wire.__isset.guid);
    EXPECT_FALSE(wire.__isset.players || wire.__isset.recorders);
    EXPECT_EQ(ChannelsReply::Received(WithoutFlags(wire)), FullChannels());
    none.commandGuid = Guid::Empty();
    EXPECT_EQ(ChannelsReply::Received({}, FullChannels()), none);

    auto other = FullChannels();
    std::swap(other.players.at(Id<ChannelGuid>('a')), other.players.at(Id<ChannelGuid>('b')));
    std::swap(other.recorders.at(Id<ChannelGuid>('a')), other.recorders.at(Id<ChannelGuid>('r')));
    EXPECT_EQ(ChannelsReply::Sent(FullChannels(), ChannelsReply::Sent(other)), wire); // entries are replaced
}

TEST(GetChannelsReplyConversion, LaterOfKeysThatBecomeOneChannelCountsAndStatesMayFail)
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
