#include "tests/Thrift/Commands/ResultsItems.h"

#include "records/Commands.h"
#include "tests/Thrift/Data/Channels/Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::OperationStatus;
using Corvane::Data::Clips::Clip;
using WireStatusOf = Corvane::Data::Generated::OperationStatusStatus;

namespace Clips = Corvane::Data::Clips;

using Item = Converters<ClipResultsItemToThriftConverter, ThriftToClipResultsItemConverter>;
using GroupReply = Converters<AnglesGroupCommandReplyToThriftConverter, ThriftToAnglesGroupCommandReplyConverter>;

Clip NamedClip(char const* const umId)
{
    auto clip = NestedClip();
    SetText(clip.umId, umId);
    return clip;
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

TEST(AnglesGroupCommandReplyConversion, WritesTheCommandIdentifierTwiceAndNeverThatOfTheGroup)
{
    auto wire = GroupReply::Sent(AnglesGroupCommandReply(Id('c'), Id<Clips::Groups::Guid>('g')));
    EXPECT_EQ(wire.commandGuid, WireId(std::string(16, 'c')));
    EXPECT_EQ(wire.groupGuid, WireId(std::string(16, 'c')));

    wire.groupGuid = WireId(std::string(16, 'w')); // both are read
    AnglesGroupCommandReply reply(Id('h'), Id<Clips::Groups::Guid>('h'));
    EXPECT_EQ(GroupReply::Told(wire, reply), "");
    EXPECT_EQ(reply.groupGuid, Id<Clips::Groups::Guid>('w'));
}

} // namespace
} // namespace Talvo::Tests
