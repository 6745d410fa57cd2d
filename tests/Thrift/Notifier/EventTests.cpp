#include "tests/Thrift/Notifier/Values.h"

#include "records/Notifier.h"
#include "tests/Thrift/Data/Channels/Values.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;
using namespace Corvane::Notification;

using Command = Converters<ClipCommandEventArgsToThriftConverter, ThriftToClipCommandEventArgsConverter>;
using CreationStarted =
    Converters<ClipCreationStartedEventArgsToThriftConverter, ThriftToClipCreationStartedEventArgsConverter>;
using DeletionFinished =
    Converters<ClipDeletionFinishedEventArgsToThriftConverter, ThriftToClipDeletionFinishedEventArgsConverter>;
using DeletionFailed =
    Converters<ClipDeletionFailedEventArgsToThriftConverter, ThriftToClipDeletionFailedEventArgsConverter>;

TEST(ClipCommandConversion, NumbersAreTruncatedAndOtherWordsAreUnknown)
{
    auto event = SomeEvent<ClipCommandEventArgs>();
    auto wire = Command::Sent(event);
    wire.userTicket = 70000;
    EXPECT_EQ(Command::Received(wire, event).userTicket, 4464);

    for (auto const& [source, word] :
         {std::pair(0, "Local"), {1, "Network"}, {2, "Unknown"}, {3, "Unknown"}, {-1, "Unknown"}})
    {
        event.requestSource = static_cast<ClipCommandEventArgs::RequestSource>(source);
        EXPECT_EQ(Command::Sent(event).requestSource, word);
    }
    for (auto const& [word, source] :
         {std::pair("Local", 0), {"Network", 1}, {"Unknown", 2}, {"local", 2}, {"NETWORK", 2}, {"Local ", 2}, {"", 2}})
    {
        wire.requestSource = word;
        EXPECT_EQ(static_cast<int>(Command::Received(wire, event).requestSource), source) << word;
    }
}

/// Writes an event with each number in the field, and reads each word.
template<typename TEnumeration>
void ExpectWords(TEnumeration ClipCreationEventArgs::*const field, auto const wireField,
                 std::vector<std::string> const& words, std::vector<std::string> const& otherWords)
{
    auto const clip = FullClip();
    auto event = SomeEvent<ClipCreationEventArgs>(clip, clip, ClipCreationEventArgs::CreationType::Make,
                                                  ClipCreationEventArgs::NetworkType::Sdti);
    auto wire = CreationStarted::Sent(event);
    auto const read = [&](std::string const& word)
    {
        wire.*wireField = word;
        return CreationStarted::Received(wire, event).*field;
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
    using Corvane::Data::OperationResult;
    auto const clip = NestedClip();
    auto const failed = [&clip](int const reserved)
    {
        auto const byte = static_cast<unsigned char>(reserved);
        return SomeEvent<ClipDeletionFailedEventArgs>(OperationResult::ResourceNotFound, short{-7}, clip, byte, byte,
                                                      static_cast<unsigned char>(0xFF), true, false);
    };
    auto const finished = [&clip](int const reserved)
    {
        auto const byte = static_cast<unsigned char>(reserved);
        return SomeEvent<ClipDeletionFinishedEventArgs>(clip, byte, byte);
    };
    auto wire = DeletionFailed::Sent(failed(9));
    EXPECT_EQ(wire.essenceBitmap, 255);
    for (auto const bitmap : {0xFF, 0x1FF, -1})
    {
        wire.essenceBitmap = static_cast<std::int16_t>(bitmap);
        EXPECT_EQ(DeletionFailed::Received(wire, failed(9)), failed(0));
    }
    EXPECT_EQ(DeletionFinished::Received(DeletionFinished::Sent(finished(9)), finished(9)), finished(0));
}

TEST(RecordingRangesChangedConversion, FlagOfTheRangesDependsOnTheRangesOfAUsedRecord)
{
    RecordingRangesChangedEventArgs const empty;
    Generated::RecordingRangesChangedEventArgs wire;
    auto const isFlagged = [&] {
        return Told<RecordingRangesChangedEventArgsToThriftConverter>(empty, wire).empty() &&
               wire.__isset.recordingRanges;
    };
    wire.__isset.recordingRanges = true;
    EXPECT_FALSE(isFlagged());
    wire.recordingRanges.resize(1);
    EXPECT_TRUE(isFlagged());
}

} // namespace
} // namespace Talvo::Tests
