#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Domain/HighLevelOperations/Commands/AnglesGroupCommandReply.h"
#include "Domain/HighLevelOperations/Commands/ChannelCommandReply.h"
#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Domain/HighLevelOperations/Commands/FailureReply.h"
#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetServersCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/LiveCommandParams.h"
#include "Domain/HighLevelOperations/Commands/PlaylistCommandReply.h"
#include "Domain/HighLevelOperations/Commands/SuccessReply.h"
#include "Domain/HighLevelOperations/Commands/UnknownCommandReply.h"

#include <gmock/gmock.h>

#include <concepts>
#include <list>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using Corvane::Data::Guid;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;
using Corvane::Data::Clips::Clip;
using Corvane::Data::Clips::Groups::AnglesGroup;
using Corvane::Data::Sequences::Playlist;
using Status = OperationStatus::Status;

using ChannelGuid = Corvane::Data::Channels::Guid;
using GroupGuid = Corvane::Data::Clips::Groups::Guid;

TEST(CommandParams, NewParametersHaveNewIdentifiers)
{
    CreateAnglesGroupCommandParams const first, second;
    EXPECT_NE(first.commandGuid, second.commandGuid);
    EXPECT_NE(first.commandGuid, first.creationParams.commandGuid);
    auto const copy = first;
    EXPECT_EQ(copy, first);
}

// The number of buckets decides which of two equal keys comes first in a map.
TEST(Maps, StartWithTenBucketsAndAFactorOfOne)
{
    auto const expectNew = [](auto const& map)
    {
        EXPECT_GE(map.bucket_count(), 10u);
        EXPECT_EQ(map.max_load_factor(), 1.0f);
    };
    expectNew(LiveCommandParams().players);
    expectNew(Corvane::Data::Sequences::Tag(Corvane::Data::Sequences::Tag::CommandType::Custom).properties);
}

TEST(CommandReply, KindsAreNumbered)
{
    Guid const guid;
    auto const kindsOf = [](auto const&... replies) { return std::vector{static_cast<int>(replies.GetType())...}; };
    EXPECT_THAT(kindsOf(UnknownCommandReply(guid, ""), SuccessReply(), FailureReply(guid, ""),
                        ClipCommandReply(guid, 0), AnglesGroupCommandReply(guid, GroupGuid()),
                        PlaylistCommandReply(guid, 0), ChannelCommandReply(guid), GetChannelsCommandReply(),
                        GetClipsCommandReply(guid, 0, {}), GetTrainsCommandReply(),
                        GetAnglesGroupsCommandReply(guid, 0, {}), GetPlaylistsCommandReply(guid, 0, {}),
                        GetServersCommandReply(), GetMultiviewerDataCommandReply()),
                testing::ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13));
}

template<typename TReply>
constexpr bool IsMovableOnly = std::is_nothrow_move_constructible_v<TReply>&& std::is_move_assignable_v<TReply> &&
                               !std::is_copy_constructible_v<TReply> && !std::is_copy_assignable_v<TReply>;

static_assert(IsMovableOnly<ClipCommandReply> && IsMovableOnly<AnglesGroupCommandReply> &&
              IsMovableOnly<PlaylistCommandReply> && IsMovableOnly<GetTrainsCommandReply>);

// The contents of these can't be compared. An inherited comparison of the identifiers would report different replies as
// equal.
static_assert(!std::equality_comparable<CommandReply> && !std::equality_comparable<ClipCommandReply> &&
              !std::equality_comparable<AnglesGroupCommandReply> && !std::equality_comparable<PlaylistCommandReply> &&
              !std::equality_comparable<GetClipsCommandReply> && !std::equality_comparable<GetTrainsCommandReply> &&
              !std::equality_comparable<GetAnglesGroupsCommandReply>);

/// A reply differs from `base` when any of its fields does.
template<typename TReply>
void ExpectDifferent(TReply const& base, auto const... changes)
{
    EXPECT_EQ(TReply(base), base);
    auto const expectDifferent = [&](auto const& change)
    {
        auto reply = base;
        change(reply);
        EXPECT_NE(reply, base);
    };
    expectDifferent([](TReply& reply) { reply.commandGuid = Guid::Generate(); });
    (expectDifferent(changes), ...);
}

TEST(CommandReply, ComparisonCoversEveryField)
{
    Guid const guid;
    ChannelGuid const channel(ChannelGuid::Type::ChannelGuidTypePlayer, 1, 2);
    ExpectDifferent(SuccessReply());
    ExpectDifferent(FailureReply(guid, ""), [](auto& reply) { reply.error = "x"; });
    ExpectDifferent(UnknownCommandReply(guid, ""), [](auto& reply) { reply.commandType = "x"; });
    ExpectDifferent(
        ChannelCommandReply(guid), [](auto& reply) { reply.resultCount = 1; },
        [](auto& reply) { reply.results.back().operationStatus.status = Status::Failed; });
    ExpectDifferent(
        GetChannelsCommandReply(), [&](auto& reply) { reply.players[channel]; },
        [&](auto& reply) { reply.recorders[channel]; });
    ExpectDifferent(GetServersCommandReply(), [](auto& reply) { reply.servers.emplace_back(); });
    ExpectDifferent(
        GetPlaylistsCommandReply(guid, 0, {}), [](auto& reply) { reply.revision = 1; },
        [](auto& reply) { reply.playlists.push_back(Playlist::Empty()); });
    ExpectDifferent(
        GetMultiviewerDataCommandReply(), [&](auto& reply) { reply.playersDataOverrides[channel]; },
        [](auto& reply) { reply.operationStatus.status = Status::Failed; });
}

/// Checks that an item keeps its content while its status is Succeeded, and that any other status destroys it.
template<typename TItem, typename THeld>
void ExpectItem(std::unique_ptr<THeld> TItem::*const held)
{
    static_assert(std::is_nothrow_move_constructible_v<TItem> && !std::is_copy_constructible_v<TItem>);
    TItem item;
    EXPECT_EQ(item.OperationStatus(), (OperationStatus{Status::NotStarted, OperationResult::Unknown}));
    EXPECT_EQ(item.*held, nullptr);

    item.OperationStatus({Status::Succeeded, OperationResult::Success});
    item.*held = std::make_unique<THeld>();
    item.OperationStatus({Status::Succeeded, OperationResult::TemporaryError});
    EXPECT_NE(item.*held, nullptr);
    for (auto const status : {Status::NotStarted, Status::Pending, Status::Failed})
    {
        item.*held = std::make_unique<THeld>();
        item.OperationStatus({status, OperationResult::Success});
        EXPECT_EQ(item.*held, nullptr);
        EXPECT_EQ(item.OperationStatus().status, status);
    }
}

TEST(ResultsItem, StatusOtherThanSucceededDestroysTheContent)
{
    ExpectItem(&ClipResultsItem::clip);
    ExpectItem(&PlaylistResultsItem::playlist);
}

TEST(ResultsItem, ClipCanBeReadOnlyFromAnItemThatSucceeded)
{
    ClipResultsItem item;
    item.clip = std::make_unique<Clip>();
    item.clip->userProtect = 5;
    EXPECT_EQ(item.Clip(), Clip::Empty());
    item.OperationStatus({Status::Succeeded, OperationResult::Success});
    EXPECT_EQ(&item.Clip(), item.clip.get());
    item.clip.reset();
    EXPECT_EQ(item.Clip(), Clip::Empty());
}

TEST(ReplyCursor, MovesOnceFromFirstToLast)
{
    std::list<Clip> clips(3);
    clips.front().userProtect = 1;
    clips.back().userProtect = 3;
    GetClipsCommandReply const reply(Guid(), 0, std::move(clips));
    EXPECT_EQ(reply.RemainingCount(), 3u);
    ASSERT_TRUE(reply.MoveNext());
    EXPECT_EQ(reply.CurrentClip().userProtect, 1);

    auto copy = std::make_unique<GetClipsCommandReply>(reply); // with its own cursor at the same position
    EXPECT_EQ(copy->CurrentClip().userProtect, 1);
    ASSERT_TRUE(copy->MoveNext() && copy->MoveNext());
    EXPECT_EQ(copy->CurrentClip().userProtect, 3);
    EXPECT_FALSE(copy->MoveNext() || copy->MoveNext());
    EXPECT_EQ(copy->RemainingCount(), 0u);
    copy.reset();
    EXPECT_EQ(reply.RemainingCount(), 2u);
    EXPECT_EQ(reply.CurrentClip().userProtect, 1);
    EXPECT_TRUE(reply.MoveNext());

    std::list<AnglesGroup> groups(1, AnglesGroup(GroupGuid()));
    GetAnglesGroupsCommandReply const groupsReply(Guid(), 0, std::move(groups));
    ASSERT_TRUE(groupsReply.MoveNext());
    EXPECT_EQ(groupsReply.CurrentAnglesGroup(), AnglesGroup(GroupGuid()));
    EXPECT_FALSE(groupsReply.MoveNext());
}

} // namespace
} // namespace Talvo::Tests
