#include "tests/Thrift/Commands/ResultsItems.h"

#include "Thrift/Data/Clips/FromClip.h"
#include "records/Commands.h"
#include "tests/Thrift/Data/Channels/Values.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::Guid;
using Corvane::Data::OperationStatus;
using Corvane::Data::Clips::Clip;
using WireStatusOf = Corvane::Data::Generated::OperationStatusStatus;

namespace Clips = Corvane::Data::Clips;

using CreateClips = Converters<CreateClipsCommandParamsToThriftConverter, ThriftToCreateClipsCommandParamsConverter>;
using UpdateClips = Converters<UpdateClipsCommandParamsToThriftConverter, ThriftToUpdateClipsCommandParamsConverter>;
using Item = Converters<ClipResultsItemToThriftConverter, ThriftToClipResultsItemConverter>;
using Reply = Converters<ClipCommandReplyToThriftConverter, ThriftToClipCommandReplyConverter>;
using GroupReply = Converters<AnglesGroupCommandReplyToThriftConverter, ThriftToAnglesGroupCommandReplyConverter>;

Clip NamedClip(char const* const umId)
{
    auto clip = NestedClip();
    SetText(clip.umId, umId);
    return clip;
}

CreateClipsCommandParams FullCreation(char const id)
{
    CreateClipsCommandParams params;
    params.commandGuid = Id(id);
    params.clips = {{Id<Clips::Guid>('s'), NestedClip(), true}, {Id<Clips::Guid>('t'), Clip(), false}};
    return params;
}

TEST(CreateClipsConversion, IgnoresFlagsOfAnEntryAndTheFailureOfItsClip)
{
    auto const full = FullCreation('c');
    auto wire = CreateClips::Sent(full);
    wire.clips[0].__isset = {};
    EXPECT_EQ(CreateClips::Received(wire, full), full);

    wire.clips[0].clip = {}; // its conversion fails
    auto expected = full;
    expected.clips[0].clip = Clip();
    EXPECT_EQ(CreateClips::Received(wire, full), expected);
}

TEST(UpdateClipsConversion, IgnoresFlagsOfAnEntryAndTheFailuresOfItsClips)
{
    UpdateClipsCommandParams full;
    full.commandGuid = Id('c');
    full.clips = {{NamedClip("OLD"), NamedClip("NEW")}, {Clip(), NamedClip("SECOND")}};
    auto wire = UpdateClips::Sent(full);
    wire.clips[0].__isset = {};
    EXPECT_EQ(UpdateClips::Received(wire, full), full);

    wire.clips[0].oldClip = wire.clips[1].newClip = {};
    auto expected = full;
    expected.clips[0].oldClip = expected.clips[1].newClip = Clip();
    EXPECT_EQ(UpdateClips::Received(wire, full), expected);
}

using Tests::Shown;

auto Shown(AnglesGroupCommandReply const& reply)
{
    return std::tuple(reply.commandGuid, Guid(reply.groupGuid), reply.operationStatus, Shown(reply.clipCommandReply));
}

TEST(ClipResultsItemConversion, WritesOnlyTheClipOfAnItemThatSucceeded)
{
    auto const expectSent = [](ClipResultsItem const& item, bool const isSent)
    {
        Generated::ClipResultsItem wire;
        wire.__isset.clip = true; // a used record
        wire = Item::Sent(item, wire);
        EXPECT_TRUE(wire.__isset.operationStatus);
        EXPECT_EQ(wire.__isset.clip, isSent);
        EXPECT_EQ(wire.clip.umId, isSent ? "UMID0001" : "");
    };
    expectSent(SomeItem<ClipResultsItem>(Succeeded, NestedClip()), true);
    expectSent(SomeItem<ClipResultsItem>(Succeeded, Clip()), false); // only defaults
    expectSent(SomeItem<ClipResultsItem>(Succeeded), false);
    expectSent(SomeItem<ClipResultsItem>(Refused, NestedClip()), false);
    expectSent(SomeItem<ClipResultsItem>(Waiting, NestedClip()), false);
}

TEST(ClipResultsItemConversion, KeepsTheReceivedClipIfTheStatusIsSucceededByThen)
{
    auto const sent = Item::Sent(SomeItem<ClipResultsItem>(Succeeded, NamedClip("SENT")));
    auto const expectReceived = [&](bool const hasStatus, bool const hasClip, OperationStatus const& held,
                                    OperationStatus const& status, char const* const umId,
                                    WireStatusOf::type const wireStatus)
    {
        auto wire = sent;
        wire.operationStatus = WireStatus(wireStatus);
        wire.__isset.operationStatus = hasStatus;
        wire.__isset.clip = hasClip;
        auto item = SomeItem<ClipResultsItem>(held, NamedClip("HELD"));
        EXPECT_EQ(Item::Told(wire, item), hasStatus || hasClip ? "" : "ClipResultsItem is empty");
        EXPECT_EQ(item.OperationStatus(), status);
        EXPECT_STREQ(item.clip == nullptr ? "none" : item.clip->umId.data(), umId);
    };
    expectReceived(true, true, Refused, Succeeded, "SENT", WireStatusOf::Succeeded);
    expectReceived(true, true, Succeeded, StartOfAnItem, "none", WireStatusOf::Failed); // the clip is dropped
    expectReceived(true, false, Succeeded, Succeeded, "HELD", WireStatusOf::Succeeded);
    expectReceived(true, false, Succeeded, StartOfAnItem, "none", WireStatusOf::Failed);
    expectReceived(false, true, Succeeded, Succeeded, "SENT", WireStatusOf::Failed); // the item keeps its status
    expectReceived(false, true, Refused, Refused, "HELD", WireStatusOf::Succeeded);
    expectReceived(false, false, Refused, Refused, "HELD", WireStatusOf::Succeeded); // untouched

    // A status without content becomes the initial status of an item. A clip that fails keeps the fields applied so
    // far.
    auto wire = sent;
    wire.operationStatus = {};
    auto item = SomeItem<ClipResultsItem>(Succeeded, NamedClip("HELD"));
    EXPECT_EQ(Item::Told(wire, item), "");
    EXPECT_EQ(Shown(item), Shown(SomeItem<ClipResultsItem>(StartOfAnItem)));
    wire = sent;
    wire.clip = {};
    EXPECT_EQ(Shown(Item::Received(wire, SomeItem<ClipResultsItem>(Refused, NestedClip()))),
              Shown(SomeItem<ClipResultsItem>(Succeeded, Clip::Empty())));
}

/// Returns a reply with three items: one that succeeded with its clip, one that failed, and one that is pending.
ClipCommandReply FullReply(char const id)
{
    ClipCommandReply reply(Id(id), 3);
    reply.results[0] = SomeItem<ClipResultsItem>(Succeeded, NestedClip());
    reply.results[1] = SomeItem<ClipResultsItem>(Refused);
    reply.results[2] = SomeItem<ClipResultsItem>(Waiting);
    return reply;
}

TEST(ClipCommandReplyConversion, KeepsAnEmptyItemAsFailed)
{
    auto wire = Reply::Sent(FullReply('c'));
    EXPECT_EQ(Shown(Reply::Received(wire, FullReply('h'))), Shown(FullReply('c')));
    wire.results[1] = {};
    wire.results[2].__isset.operationStatus = false; // an item with only a clip becomes failed, and its clip is dropped
    wire.results[2].__isset.clip = true;
    auto expected = FullReply('c');
    expected.results[1] = SomeItem<ClipResultsItem>(StartOfAnItem);
    expected.results[2] = SomeItem<ClipResultsItem>(StartOfAnItem);
    EXPECT_EQ(Shown(Reply::Received(wire, FullReply('h'))), Shown(expected));
}

/// Returns a reply with `id` as the identifier of the command and of the group.
AnglesGroupCommandReply FullGroupReply(char const id)
{
    AnglesGroupCommandReply reply(Id(id), Id<Clips::Groups::Guid>(id));
    reply.operationStatus = Refused;
    reply.clipCommandReply = FullReply('d');
    return reply;
}

TEST(AnglesGroupCommandReplyConversion, WritesTheCommandIdentifierTwiceAndNeverThatOfTheGroup)
{
    auto source = FullGroupReply('c');
    source.groupGuid = Id<Clips::Groups::Guid>('g');
    auto wire = GroupReply::Sent(std::move(source));
    EXPECT_EQ(wire.commandGuid, WireId(std::string(16, 'c')));
    EXPECT_EQ(wire.groupGuid, WireId(std::string(16, 'c')));

    wire.groupGuid = WireId(std::string(16, 'w')); // both are read
    EXPECT_EQ(GroupReply::Received(wire, FullGroupReply('h')).groupGuid, Id<Clips::Groups::Guid>('w'));
}

TEST(AnglesGroupCommandReplyConversion, RejectedRecordKeepsTheReplyAndAnyOtherReplacesIt)
{
    auto const wire = GroupReply::Sent(FullGroupReply('c'));
    auto partial = wire;
    partial.__isset.commandGuid = false;
    auto reply = FullGroupReply('h');
    EXPECT_EQ(GroupReply::Told(partial, reply), "AnglesGroupCommandReply is empty");
    EXPECT_EQ(Shown(reply), Shown(FullGroupReply('h')));

    auto const expectNoItems = [](Generated::AnglesGroupCommandReply const& sent)
    {
        EXPECT_EQ(Shown(GroupReply::Received(sent, FullGroupReply('h'))),
                  Shown(AnglesGroupCommandReply(Id('c'), Id<Clips::Groups::Guid>('c'))));
    };
    auto bare = wire;
    bare.__isset.operationStatus = bare.__isset.clipCommandReply = false;
    expectNoItems(bare);
    auto failing = wire; // the failure of the nested reply is ignored
    failing.operationStatus = {};
    failing.clipCommandReply.__isset.guid = false;
    expectNoItems(failing);
}

} // namespace
} // namespace Talvo::Tests
