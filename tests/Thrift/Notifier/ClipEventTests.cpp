#include "tests/Thrift/Notifier/Values.h"

#include "tests/Thrift/Data/Channels/Values.h"
#include "tools/records/Notifier.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;
using namespace Corvane::Notification;
using Corvane::Data::OperationResult;
using Corvane::Data::Clips::Clip;
using CreationType = ClipCreationEventArgs::CreationType;
using NetworkType = ClipCreationEventArgs::NetworkType;

/// All that any clip event adds to its block.
struct Details
{
    Clip first, second;
    CreationType creation = CreationType::Make;
    NetworkType network = NetworkType::Sdti;
    OperationResult result = OperationResult::Unknown;
    short internal = 0;
    unsigned int serial = 0;
    unsigned char essences = 0;
    bool flag = false, otherFlag = false;
    unsigned char reserved = 0, otherReserved = 0;
};

Details FullDetails()
{
    auto second = NestedClip();
    SetText(second.umId, "SECOND");
    return {NestedClip(),
            second,
            CreationType::Copy,
            NetworkType::PushGbe,
            OperationResult::ResourceNotFound,
            -7,
            0xFFFFFFFC,
            0xFE,
            true};
}

// What the constructors take behind the block.
auto Clips(Details const& all)
{
    return std::tie(all.first, all.second);
}
auto FailedClips(Details const& all)
{
    return std::tie(all.result, all.internal, all.first, all.second);
}
auto Creation(Details const& all)
{
    return std::tie(all.first, all.second, all.creation, all.network);
}
auto FailedCreation(Details const& all)
{
    return std::tie(all.result, all.internal, all.first, all.second, all.creation, all.network);
}
auto Update(Details const& all)
{
    return std::tie(all.flag, all.first, all.second);
}
auto Deletion(Details const& all)
{
    return std::tie(all.first, all.reserved, all.otherReserved);
}
auto FailedDeletion(Details const& all)
{
    return std::tie(all.result, all.internal, all.first, all.reserved, all.otherReserved, all.essences, all.flag,
                    all.otherFlag);
}
auto Mass(Details const& all)
{
    return std::tie(all.serial);
}
auto FailedMass(Details const& all)
{
    return std::tie(all.result, all.internal, all.serial);
}

template<auto arguments, typename TToWire, typename TToDomain>
struct ClipEvent : Converters<TToWire, TToDomain>
{
    using Domain = typename Converters<TToWire, TToDomain>::Domain;

    static Domain Of(Block const& block, Details const& details)
    {
        auto event = std::apply(
            [&block](auto const&... values)
            {
                return Domain(block.localMachineSerial, block.requestSource, block.operationNumber, block.userTicket,
                              block.commandGuid, block.databaseRevision, values...);
            },
            arguments(details));
        event.subCommandIndex = block.subCommandIndex;
        return event;
    }

    static Domain Full() { return Of(FullBlock(), FullDetails()); }

    /// What a destination holds before.
    static Domain Held() { return Of(HeldBlock(), {}); }
};

// Each with what it sends of a full event.
struct CreationStarted
    : ClipEvent<Creation, ClipCreationStartedEventArgsToThriftConverter, ThriftToClipCreationStartedEventArgsConverter>
{
    static constexpr auto Text =
        "ClipCreationStartedEventArgs(clipCommand=<block>, sourceClip=<first>, newClip=<second>, creationType=Copy, "
        "networkType=PushGbe, databaseRevision=-4294967301)";
};
struct CreationFinished : ClipEvent<Creation, ClipCreationFinishedEventArgsToThriftConverter,
                                    ThriftToClipCreationFinishedEventArgsConverter>
{
    static constexpr auto Text =
        "ClipCreationFinishedEventArgs(clipCommand=<block>, sourceClip=<first>, newClip=<second>, creationType=Copy, "
        "networkType=PushGbe, databaseRevision=-4294967301)";
};
struct CreationFailed : ClipEvent<FailedCreation, ClipCreationFailedEventArgsToThriftConverter,
                                  ThriftToClipCreationFailedEventArgsConverter>
{
    static constexpr auto Text =
        "ClipCreationFailedEventArgs(clipCommand=<block>, sourceClip=<first>, newClip=<second>, creationType=Copy, "
        "networkType=PushGbe, result=3, internalResult=0, databaseRevision=-4294967301)";
};
struct UpdateFinished
    : ClipEvent<Update, ClipUpdateFinishedEventArgsToThriftConverter, ThriftToClipUpdateFinishedEventArgsConverter>
{
    static constexpr auto Text = "ClipUpdateFinishedEventArgs(clipCommand=<block>, oldClip=<first>, newClip=<second>, "
                                 "endOfGrowingClipCreation=1, databaseRevision=-4294967301)";
};
struct UpdateFailed
    : ClipEvent<FailedClips, ClipUpdateFailedEventArgsToThriftConverter, ThriftToClipUpdateFailedEventArgsConverter>
{
    static constexpr auto Text = "ClipUpdateFailedEventArgs(clipCommand=<block>, oldClip=<first>, newClip=<second>, "
                                 "result=3, internalResult=-7, databaseRevision=-4294967301)";
};
struct MassUpdateFinished : ClipEvent<Mass, MassClipUpdateFinishedEventArgsToThriftConverter,
                                      ThriftToMassClipUpdateFinishedEventArgsConverter>
{
    static constexpr auto Text = "MassClipUpdateFinishedEventArgs(clipCommand=<block>, machineSerial=4294967292, "
                                 "databaseRevision=-4294967301)";
};
struct MassUpdateFailed : ClipEvent<FailedMass, MassClipUpdateFailedEventArgsToThriftConverter,
                                    ThriftToMassClipUpdateFailedEventArgsConverter>
{
    static constexpr auto Text = "MassClipUpdateFailedEventArgs(clipCommand=<block>, machineSerial=4294967292, "
                                 "result=3, internalResult=-7, databaseRevision=-4294967301)";
};
struct DeletionFinished : ClipEvent<Deletion, ClipDeletionFinishedEventArgsToThriftConverter,
                                    ThriftToClipDeletionFinishedEventArgsConverter>
{
    static constexpr auto Text =
        "ClipDeletionFinishedEventArgs(clipCommand=<block>, removedClip=<first>, databaseRevision=-4294967301)";
};
struct DeletionFailed : ClipEvent<FailedDeletion, ClipDeletionFailedEventArgsToThriftConverter,
                                  ThriftToClipDeletionFailedEventArgsConverter>
{
    static constexpr auto Text =
        "ClipDeletionFailedEventArgs(clipCommand=<block>, removedClip=<first>, result=3, internalResult=-7, "
        "essenceBitmap=254, fromUCode=1, forceForPlaylist=0, databaseRevision=-4294967301)";
};
struct MassDeletionFinished : ClipEvent<Mass, MassClipDeletionFinishedEventArgsToThriftConverter,
                                        ThriftToMassClipDeletionFinishedEventArgsConverter>
{
    static constexpr auto Text = "MassClipDeletionFinishedEventArgs(clipCommand=<block>, machineSerial=4294967292, "
                                 "databaseRevision=-4294967301)";
};
struct MassDeletionFailed : ClipEvent<FailedMass, MassClipDeletionFailedEventArgsToThriftConverter,
                                      ThriftToMassClipDeletionFailedEventArgsConverter>
{
    static constexpr auto Text = "MassClipDeletionFailedEventArgs(clipCommand=<block>, machineSerial=4294967292, "
                                 "result=3, internalResult=-7, databaseRevision=-4294967301)";
};
struct MoveStarted
    : ClipEvent<Clips, ClipMoveStartedEventArgsToThriftConverter, ThriftToClipMoveStartedEventArgsConverter>
{
    static constexpr auto Text = "ClipMoveStartedEventArgs(clipCommand=<block>, sourceClip=<first>, "
                                 "destClip=<second>, databaseRevision=-4294967301)";
};
struct MoveFinished
    : ClipEvent<Clips, ClipMoveFinishedEventArgsToThriftConverter, ThriftToClipMoveFinishedEventArgsConverter>
{
    static constexpr auto Text = "ClipMoveFinishedEventArgs(clipCommand=<block>, sourceClip=<first>, "
                                 "destClip=<second>, databaseRevision=-4294967301)";
};
struct MoveFailed
    : ClipEvent<FailedClips, ClipMoveFailedEventArgsToThriftConverter, ThriftToClipMoveFailedEventArgsConverter>
{
    static constexpr auto Text = "ClipMoveFailedEventArgs(clipCommand=<block>, sourceClip=<first>, destClip=<second>, "
                                 "result=3, internalResult=-7, databaseRevision=-4294967301)";
};

using WireClip = Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated::Clip;

/// The clips of an event, in the order in which they are converted.
std::vector<WireClip*> ClipsOf(auto& wire)
{
    if constexpr (requires { wire.destClip; })
        return {&wire.sourceClip, &wire.destClip};
    else if constexpr (requires { wire.sourceClip; })
        return {&wire.sourceClip, &wire.newClip};
    else if constexpr (requires { wire.oldClip; })
        return {&wire.oldClip, &wire.newClip};
    else if constexpr (requires { wire.removedClip; })
        return {&wire.removedClip};
    else
        return {};
}

/// The names of the fields, in order.
std::vector<std::string> FieldNames(std::string const& text)
{
    std::vector<std::string> names;
    std::istringstream fields(text.substr(text.find('(') + 1));
    for (std::string field; std::getline(fields >> std::ws, field, ',');)
        names.push_back(field.substr(0, field.find('=')));
    return names;
}

template<typename TEvent>
class ClipEventConversion : public testing::Test
{
};
using ClipEvents = testing::Types<CreationStarted, CreationFinished, CreationFailed, UpdateFinished, UpdateFailed,
                                  MassUpdateFinished, MassUpdateFailed, DeletionFinished, DeletionFailed,
                                  MassDeletionFinished, MassDeletionFailed, MoveStarted, MoveFinished, MoveFailed>;
TYPED_TEST_SUITE(ClipEventConversion, ClipEvents, );

TYPED_TEST(ClipEventConversion, RoundTripReplacesTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    EXPECT_TRUE(wire.__isset.databaseRevision);
    WireClip first, second;
    for (auto const* const clip : ClipsOf(wire)) (first == WireClip() ? first : second) = *clip;
    EXPECT_EQ(
        Shown(wire,
              {{Printed(wire.clipCommand), "<block>"}, {Printed(first), "<first>"}, {Printed(second), "<second>"}}),
        Event::Text);

    if constexpr (!std::is_same_v<Event, CreationFailed>) // what that one loses is told below
        for (auto const& [value, fresh] : {std::pair(Event::Full(), Event::Held()), {Event::Held(), Event::Full()}})
            ExpectRoundTrip<Event>(value, fresh);
}

TYPED_TEST(ClipEventConversion, EveryFieldButInternalResultAndRevisionIsNeeded)
{
    using Event = TypeParam;
    std::string const text = Event::Text;
    auto const failure = "Incomplete " + text.substr(0, text.find('(')) + " - missing fields";
    auto const names = FieldNames(text);
    auto const incomplete = EachFieldMissing(Event::Sent(Event::Full()));
    ASSERT_EQ(incomplete.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        SCOPED_TRACE(names[i]);
        auto const isNeeded = names[i] != "internalResult" && names[i] != "databaseRevision";
        auto event = Event::Held();
        EXPECT_EQ(Event::Told(incomplete[i], event), isNeeded ? failure : "");
        EXPECT_EQ(event == Event::Held(), isNeeded);
    }

    // Without its flag the revision is what the field holds, the internal result is -1.
    auto wire = Event::Sent(Event::Full());
    wire.__isset.databaseRevision = false;
    auto expected = Event::Full();
    if constexpr (requires { wire.internalResult; })
    {
        wire.internalResult = 8;
        wire.__isset.internalResult = true;
        expected.internalResult = 8;
        EXPECT_EQ(Event::Received(wire, Event::Held()), expected);
        wire.__isset.internalResult = false;
        expected.internalResult = -1;
    }
    EXPECT_EQ(Event::Received(wire, Event::Held()), expected);
}

TYPED_TEST(ClipEventConversion, ABadClipLeavesTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    wire.clipCommand.__isset.commandGuid = false; // judged after the clips
    auto event = Event::Held();
    auto const clips = ClipsOf(wire);
    if (clips.size() == 2)
    {
        clips.back()->inBoundTodTimecode = "2024-06-15T18:30:00:00@50"; // a full clip is Ntsc
        EXPECT_EQ(Event::Told(wire, event), "In Bound TOD Timecode Rate inconsistent with Clip Rate");
        EXPECT_EQ(event, Event::Held());
    }
    if (!clips.empty())
    {
        clips.front()->__isset = {};
        EXPECT_EQ(Event::Told(wire, event), "Clip is empty");
        EXPECT_EQ(event, Event::Held());
    }
}

TYPED_TEST(ClipEventConversion, ABadBlockLeavesPlaceholdersInTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    wire.clipCommand.__isset.commandGuid = false;
    auto event = Event::Held();
    EXPECT_EQ(Event::Told(wire, event), "Missing fields for ClipCommand");
    auto expected = Event::Of(Placeholders(), FullDetails());
    if constexpr (std::is_same_v<Event, CreationFailed>) expected.internalResult = -1;
    EXPECT_EQ(event, expected);
}

using BlockOf = Converters<ClipCommandEventArgsToThriftConverter, ThriftToClipCommandEventArgsConverter>;

ClipCommandEventArgs EventOf(Block const& block)
{
    ClipCommandEventArgs event(0, RequestSource::Unknown, 0, 0, Corvane::Data::Guid::Empty(), 0);
    block.Fill(event);
    return event;
}

TEST(ClipCommandConversion, RoundTripLeavesTheRevision)
{
    auto held = EventOf(HeldBlock());
    held.databaseRevision = FullBlock().databaseRevision;
    ExpectRoundTrip<BlockOf>(EventOf(FullBlock()), held);

    auto const wire = BlockOf::Sent(EventOf(FullBlock()));
    EXPECT_TRUE(wire.__isset.subCommandIndex);
    EXPECT_EQ(Printed(wire), "ClipCommandEventArgs(localMachineSerial=4294967294, requestSource=Network, "
                             "operationNumber=-2147483647, userTicket=65533, commandGuid=Guid(value=cccccccccccccccc), "
                             "subCommandIndex=-4)");
}

TEST(ClipCommandConversion, AllFieldsButTheSubCommandIndexAreNeeded)
{
    auto const incomplete = EachFieldMissing(BlockOf::Sent(EventOf(FullBlock())));
    ASSERT_EQ(incomplete.size(), 6u);
    for (std::size_t i = 0; i < 5; ++i)
    {
        auto event = EventOf(HeldBlock());
        EXPECT_EQ(BlockOf::Told(incomplete[i], event), "Missing fields for ClipCommand");
        EXPECT_EQ(event, EventOf(HeldBlock()));
    }
    EXPECT_EQ(BlockOf::Received(incomplete[5], EventOf(HeldBlock())).subCommandIndex, 0);

    auto wire = BlockOf::Sent(EventOf(FullBlock()));
    wire.__isset.subCommandIndex = false;
    EXPECT_EQ(BlockOf::Received(wire, EventOf(HeldBlock())).subCommandIndex, -4);
}

TEST(ClipCommandConversion, NumbersAreCutAndOtherWordsAreUnknown)
{
    auto wire = BlockOf::Sent(EventOf(HeldBlock()));
    wire.userTicket = 70000;
    wire.localMachineSerial = 0x7FFFFFFF00000005;
    wire.commandGuid = {}; // reads as sixteen zeros
    auto const event = BlockOf::Received(wire, EventOf(FullBlock()));
    EXPECT_EQ(event.userTicket, 4464);
    EXPECT_EQ(event.localMachineSerial, 5u);
    EXPECT_EQ(event.commandGuid, Corvane::Data::Guid::Empty());
    wire.userTicket = -1;
    EXPECT_EQ(BlockOf::Received(wire, event).userTicket, 0xFFFF);

    auto const sent = [](int const source)
    {
        auto block = FullBlock();
        block.requestSource = static_cast<RequestSource>(source);
        return BlockOf::Sent(EventOf(block)).requestSource;
    };
    EXPECT_EQ(sent(0), "Local");
    EXPECT_EQ(sent(1), "Network");
    for (int const unknown : {2, 3, -1}) EXPECT_EQ(sent(unknown), "Unknown");
    for (auto const& [word, source] :
         {std::pair("Local", 0), {"Network", 1}, {"Unknown", 2}, {"local", 2}, {"NETWORK", 2}, {"Local ", 2}, {"", 2}})
    {
        wire.requestSource = word;
        EXPECT_EQ(static_cast<int>(BlockOf::Received(wire, event).requestSource), source) << word;
    }
}

/// Sends an event whose field holds each number, and reads each word.
template<typename TEnumeration>
void ExpectWords(TEnumeration ClipCreationEventArgs::*const field, auto const wireField,
                 std::vector<std::string> const& words, std::vector<std::string> const& otherWords)
{
    auto event = CreationStarted::Full();
    auto wire = CreationStarted::Sent(event);
    auto const read = [&](std::string const& word)
    {
        wire.*wireField = word;
        return CreationStarted::Received(wire, CreationStarted::Held()).*field;
    };
    for (std::size_t number = 0; number < words.size(); ++number)
    {
        auto const value = static_cast<TEnumeration>(number);
        event.*field = value;
        EXPECT_EQ(CreationStarted::Sent(event).*wireField, words[number]);
        EXPECT_EQ(read(words[number]), value);
    }
    for (int const other : {-1, static_cast<int>(words.size()), 0x7FFFFFFF})
    {
        event.*field = static_cast<TEnumeration>(other);
        EXPECT_EQ(CreationStarted::Sent(event).*wireField, "Unknown");
    }
    for (auto const& word : otherWords) EXPECT_EQ(read(word), TEnumeration::Unknown) << word;
}

TEST(ClipCreationConversion, WordsAreExactAndAllOthersUnknown)
{
    using Wire = CreationStarted::Wire;
    ExpectWords(&ClipCreationEventArgs::creationType, &Wire::creationType,
                {"Make", "Copy", "ZarfRestore", "GbeRestore", "Unknown"},
                {"make", "COPY", "zarfRestore", "Gberestore", "unknown", "Make ", "", "Sdti"});
    ExpectWords(&ClipCreationEventArgs::networkType, &Wire::networkType,
                {"Sdti", "Gbe", "Unknown", "PushSdti", "PushGbe", "PushUnknown"},
                {"SDTI", "gbe", "unknown", "pushSdti", "PUSHGBE", "Pushunknown", "", "Copy"});
}

TEST(ClipCreationConversion, AFailureDoesNotSendItsInternalResult)
{
    auto const wire = CreationFailed::Sent(CreationFailed::Full());
    EXPECT_FALSE(wire.__isset.internalResult);
    auto expected = CreationFailed::Full();
    expected.internalResult = -1;
    EXPECT_EQ(CreationFailed::Received(wire, CreationFailed::Held()), expected);

    // A record that is used again keeps what it holds.
    auto used = wire;
    used.internalResult = 9;
    used.__isset.internalResult = true;
    used = CreationFailed::Sent(CreationFailed::Full(), used);
    expected.internalResult = 9;
    EXPECT_EQ(CreationFailed::Received(used, CreationFailed::Held()), expected);

    // Records are written with all their fields, so over the wire it is the 0 of the new record that is read.
    expected.internalResult = 0;
    for (auto const& protocol : Protocols())
        EXPECT_EQ(CreationFailed::Received(Read<CreationFailed::Wire>(Written(wire, *protocol), *protocol),
                                           CreationFailed::Held()),
                  expected);
}

TEST(ClipDeletionConversion, ReservedBytesStayAndTheBitmapHasOneByte)
{
    auto details = FullDetails();
    details.reserved = 9;
    details.otherReserved = 10;
    details.essences = 0xFF;
    details.otherFlag = true;
    auto expected = details;
    expected.reserved = expected.otherReserved = 0;

    auto wire = DeletionFailed::Sent(DeletionFailed::Of(FullBlock(), details));
    EXPECT_EQ(wire.essenceBitmap, 255);
    auto const held = DeletionFailed::Of(HeldBlock(), details);
    for (auto const bitmap : {0xFF, 0x1FF, -1})
    {
        wire.essenceBitmap = static_cast<std::int16_t>(bitmap);
        EXPECT_EQ(DeletionFailed::Received(wire, held), DeletionFailed::Of(FullBlock(), expected));
    }
    EXPECT_EQ(DeletionFinished::Received(DeletionFinished::Sent(DeletionFinished::Of(FullBlock(), details)),
                                         DeletionFinished::Of(HeldBlock(), details)),
              DeletionFinished::Of(FullBlock(), expected));
}

TEST(MassClipConversion, LosesTheHighWordOfTheSerialNumber)
{
    auto const expectCut = []<typename TEvent>(TEvent)
    {
        auto wire = TEvent::Sent(TEvent::Full());
        wire.machineSerial = 4294967301;
        EXPECT_EQ(TEvent::Received(wire, TEvent::Held()).machineSerial, 5u);
    };
    expectCut(MassUpdateFinished());
    expectCut(MassUpdateFailed());
    expectCut(MassDeletionFinished());
    expectCut(MassDeletionFailed());
}

} // namespace
} // namespace Talvo::Tests
