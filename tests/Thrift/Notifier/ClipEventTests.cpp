#include "tests/Thrift/Notifier/Values.h"

#include "records/Notifier.h"
#include "tests/Thrift/Data/Channels/Values.h"

#include <gtest/gtest.h>

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

/// The fields that any clip event has in addition to its block.
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

// These functions return the arguments of the constructors after the block.
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

    /// Returns the event that a used destination holds.
    static Domain Held() { return Of(HeldBlock(), {}); }
};

using CreationStarted =
    ClipEvent<Creation, ClipCreationStartedEventArgsToThriftConverter, ThriftToClipCreationStartedEventArgsConverter>;
using CreationFinished =
    ClipEvent<Creation, ClipCreationFinishedEventArgsToThriftConverter, ThriftToClipCreationFinishedEventArgsConverter>;
using CreationFailed = ClipEvent<FailedCreation, ClipCreationFailedEventArgsToThriftConverter,
                                 ThriftToClipCreationFailedEventArgsConverter>;
using UpdateFinished =
    ClipEvent<Update, ClipUpdateFinishedEventArgsToThriftConverter, ThriftToClipUpdateFinishedEventArgsConverter>;
using UpdateFailed =
    ClipEvent<FailedClips, ClipUpdateFailedEventArgsToThriftConverter, ThriftToClipUpdateFailedEventArgsConverter>;
using MassUpdateFinished =
    ClipEvent<Mass, MassClipUpdateFinishedEventArgsToThriftConverter, ThriftToMassClipUpdateFinishedEventArgsConverter>;
using MassUpdateFailed = ClipEvent<FailedMass, MassClipUpdateFailedEventArgsToThriftConverter,
                                   ThriftToMassClipUpdateFailedEventArgsConverter>;
using DeletionFinished =
    ClipEvent<Deletion, ClipDeletionFinishedEventArgsToThriftConverter, ThriftToClipDeletionFinishedEventArgsConverter>;
using DeletionFailed = ClipEvent<FailedDeletion, ClipDeletionFailedEventArgsToThriftConverter,
                                 ThriftToClipDeletionFailedEventArgsConverter>;
using MassDeletionFinished = ClipEvent<Mass, MassClipDeletionFinishedEventArgsToThriftConverter,
                                       ThriftToMassClipDeletionFinishedEventArgsConverter>;
using MassDeletionFailed = ClipEvent<FailedMass, MassClipDeletionFailedEventArgsToThriftConverter,
                                     ThriftToMassClipDeletionFailedEventArgsConverter>;
using MoveStarted =
    ClipEvent<Clips, ClipMoveStartedEventArgsToThriftConverter, ThriftToClipMoveStartedEventArgsConverter>;
using MoveFinished =
    ClipEvent<Clips, ClipMoveFinishedEventArgsToThriftConverter, ThriftToClipMoveFinishedEventArgsConverter>;
using MoveFailed =
    ClipEvent<FailedClips, ClipMoveFailedEventArgsToThriftConverter, ThriftToClipMoveFailedEventArgsConverter>;

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

template<typename TEvent>
class ClipEventConversion : public testing::Test
{
};
using ClipEvents = testing::Types<CreationStarted, CreationFinished, CreationFailed, UpdateFinished, UpdateFailed,
                                  MassUpdateFinished, MassUpdateFailed, DeletionFinished, DeletionFailed,
                                  MassDeletionFinished, MassDeletionFailed, MoveStarted, MoveFinished, MoveFailed>;
TYPED_TEST_SUITE(ClipEventConversion, ClipEvents, );

TYPED_TEST(ClipEventConversion, SendsTheFirstClipFirst)
{
    auto wire = TypeParam::Sent(TypeParam::Full());
    std::string names;
    for (auto const* const clip : ClipsOf(wire)) names += clip->umId + ' ';
    EXPECT_TRUE(names == "UMID0001 SECOND " || names == "UMID0001 " || names.empty()) << names;
    if constexpr (requires { wire.fromUCode; })
    {
        EXPECT_TRUE(wire.fromUCode && !wire.forceForPlaylist);
    }
}

TYPED_TEST(ClipEventConversion, ReadsTheRevisionRegardlessOfItsFlagButNotTheInternalResult)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    wire.__isset.databaseRevision = false;
    auto expected = Event::Full();
    if constexpr (requires { wire.internalResult; })
    {
        wire.internalResult = 8;
        wire.__isset.internalResult = false;
        expected.internalResult = -1;
    }
    EXPECT_EQ(Event::Received(wire, Event::Held()), expected);
}

TYPED_TEST(ClipEventConversion, BadClipKeepsTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    wire.clipCommand.__isset.commandGuid = false; // checked after the clips
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

TYPED_TEST(ClipEventConversion, BadBlockSetsPlaceholdersInTheDestination)
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

TEST(ClipCommandConversion, RejectedBlockKeepsTheDestinationAndTheSubCommandIndexNeedsNoFlag)
{
    auto wire = BlockOf::Sent(EventOf(FullBlock()));
    wire.__isset.subCommandIndex = false;
    EXPECT_EQ(BlockOf::Received(wire, EventOf(HeldBlock())).subCommandIndex, -4);
    wire.__isset.userTicket = false;
    auto event = EventOf(HeldBlock());
    EXPECT_EQ(BlockOf::Told(wire, event), "Missing fields for ClipCommand");
    EXPECT_EQ(event, EventOf(HeldBlock()));
}

TEST(ClipCommandConversion, NumbersAreTruncatedAndOtherWordsAreUnknown)
{
    auto wire = BlockOf::Sent(EventOf(HeldBlock()));
    wire.userTicket = 70000;
    auto const event = BlockOf::Received(wire, EventOf(FullBlock()));
    EXPECT_EQ(event.userTicket, 4464);

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

/// Writes an event with each number in the field, and reads each word.
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

TEST(ClipCreationConversion, WordsAreMatchedExactlyAndOthersAreUnknown)
{
    using Wire = CreationStarted::Wire;
    ExpectWords(&ClipCreationEventArgs::creationType, &Wire::creationType,
                {"Make", "Copy", "ZarfRestore", "GbeRestore", "Unknown"},
                {"make", "COPY", "zarfRestore", "Gberestore", "unknown", "Make ", "", "Sdti"});
    ExpectWords(&ClipCreationEventArgs::networkType, &Wire::networkType,
                {"Sdti", "Gbe", "Unknown", "PushSdti", "PushGbe", "PushUnknown"},
                {"SDTI", "gbe", "unknown", "pushSdti", "PUSHGBE", "Pushunknown", "", "Copy"});
}

TEST(ClipDeletionConversion, ReservedBytesAreNotWrittenAndTheBitmapHasOneByte)
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

} // namespace
} // namespace Talvo::Tests
