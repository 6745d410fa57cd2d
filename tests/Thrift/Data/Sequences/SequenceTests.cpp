#include "tests/Thrift/Data/Sequences/Values.h"

#include "records/Sequences.h"
#include "tests/Thrift/Converters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
using Corvane::Data::Sequences::Element;
using Corvane::Data::Sequences::Playlist;
using Corvane::Data::Sequences::Sequence;
using Corvane::Data::Sequences::SequenceId;
using Corvane::Data::Servers::ServerId;
using TimePoints::VideoRate;

using WireArchiveStatus = Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated::ArchiveStatus;

using OfSequence = Converters<SequenceToThriftConverter, ThriftToSequenceConverter>;

constexpr auto Min64 = std::numeric_limits<std::int64_t>::min();
constexpr auto Max64 = std::numeric_limits<std::int64_t>::max();

std::string Text(auto const& payload)
{
    return {payload.begin(), payload.end()};
}

TEST(SequenceConversion, PlayRateDependsOnlyOnTheNumeratorUnlessTheDenominatorIsOne)
{
    struct Row
    {
        std::int64_t numerator;
        std::int64_t denominator;
        VideoRate taken; // {0, 0} if rejected
    };
    constexpr VideoRate refused{0, 0};
    for (auto const& [numerator, denominator, taken] : {
             Row{25, 1, {25, 1}}, // a denominator of 1 is not checked
             Row{0, 1, {0, 1}},
             Row{-50, 1, {-50, 1}},
             Row{Max64, 1, {Max64, 1}},
             Row{Min64, 1, {Min64, 1}},
             Row{30000, 1, {30000, 1}},
             Row{24000, 7, {24000, 1001}}, // a standard rate gets the denominator 1001
             Row{30000, 1002, {30000, 1001}},
             Row{48000, 0, {48000, 1001}},
             Row{60000, -1001, {60000, 1001}},
             Row{120000, Max64, {120000, 1001}},
             Row{25, 2, refused},
             Row{25000, 3, refused},
             Row{0, 0, refused},
             Row{-30000, 1001, refused},
             Row{30000 + (std::int64_t{1} << 32), 1001, refused}, // not truncated to the low word
             Row{Min64, -1, refused},
             Row{Max64, Min64, refused},
         })
    {
        auto wire = OfSequence::Sent(FullSequence());
        wire.playRateNumerator = numerator;
        wire.playRateDenominator = denominator;
        Sequence sequence;
        auto const told = OfSequence::Told(wire, sequence);
        auto expected = FullSequence();
        if (taken != refused)
        {
            EXPECT_EQ(told, "");
            expected.playRate = taken;
        }
        else // fields before the rate are applied, and fields after it are not
        {
            EXPECT_EQ(told, "Invalid sequence rate " + std::to_string(numerator) + ":" + std::to_string(denominator));
            expected.playRate = Sequence().playRate;
            expected.isFixedDuration = Sequence().isFixedDuration;
            expected.archiveStatus = Sequence().archiveStatus;
        }
        EXPECT_EQ(sequence, expected) << numerator << ":" << denominator;
    }
}

TEST(SequenceConversion, MalformedTimeCodeStopsTheConversion)
{
    auto const expected = [] // the fields before the time code
    {
        auto sequence = Sequence();
        auto const full = FullSequence();
        sequence.id = full.id;
        sequence.umId = full.umId;
        sequence.varId = full.varId;
        sequence.name = full.name;
        sequence.isTimeCodeRegen = true;
        return sequence;
    }();
    for (auto const* const text :
         {"", "noon", "2024-02-29T12:00:00:00", "0999-01-01T00:00:00:00@25", "2024-02-29 12:00:00:00@25",
          "30:00:00:00@25", "00:60:00:00@25", "00:00:00:00@", "00:00:00:00@25 ", "00:00:00.00@25", "00:00:00:00@-25"})
    {
        auto wire = OfSequence::Sent(FullSequence());
        wire.timeCodeRegenReference = text;
        Sequence sequence;
        EXPECT_EQ(OfSequence::Told(wire, sequence),
                  std::string("Invalid TimeCode format (TalvoTimeCodeParser the string '") + text +
                      "' has not the expected format.)");
        EXPECT_EQ(sequence, expected);
    }

    // An undated time code is written as a text that can't be parsed.
    auto undated = FullSequence();
    undated.timeCodeRegenReference = ParsedTimeCode("10:11:12:13@25");
    Sequence sequence;
    EXPECT_EQ(
        OfSequence::Told(OfSequence::Sent(undated), sequence),
        "Invalid TimeCode format (TalvoTimeCodeParser the string '-1-0-1-0-1T10:11:12:13@25' has not the expected "
        "format.)");
    EXPECT_EQ(sequence, expected);
}

TEST(SequenceConversion, TextsAreTruncatedAndFilledWithZeros)
{
    using namespace std::string_literals;
    Generated::Sequence wire;
    wire.__isset.id = wire.__isset.umId = wire.__isset.varId = wire.__isset.name = true; // the inner flags are clear
    wire.umId = "TWELVE CHARS";
    wire.varId.data = "\x3D\xD8\x00"s; // a UTF-16 unit and a half
    wire.varId.isUtf16 = true;
    wire.name.data = "a\0b\0c\0d\0e\0f\0g\0h\0i\0j\0k\0\x3D\xD8\x00\xDE"s; // the last two units are one character
    auto sequence = OfSequence::Received(wire, FullSequence());
    EXPECT_EQ(sequence.id, SequenceId(ServerId(0), 0));
    EXPECT_STREQ(sequence.umId.GetUmId(), "TWELVE C");
    EXPECT_TRUE(sequence.varId.isUtf16);
    EXPECT_FALSE(sequence.name.isUtf16);

    auto const again = OfSequence::Sent(sequence);
    EXPECT_EQ(again.umId, "TWELVE C");
    EXPECT_EQ(again.varId.data, wire.varId.data + std::string(29, '\0'));
    EXPECT_EQ(again.name.data, wire.name.data.substr(0, 24));
    EXPECT_TRUE(again.varId.isUtf16 && again.varId.__isset.data && again.varId.__isset.isUtf16);

    wire.varId.data = std::string(31, 'v') + "wx"; // an odd start, so that the text is cut inside a unit
    wire.name.data = "";
    wire.umId = "A\0B"s;
    sequence = OfSequence::Received(wire, sequence);
    EXPECT_EQ(Text(sequence.varId.payload), std::string(31, 'v') + 'w');
    EXPECT_EQ(Text(sequence.name.payload), std::string(24, '\0'));
    EXPECT_THAT(sequence.varId.end, testing::Each('\0'));
    EXPECT_EQ(sequence.umId, SomeUmId("A"));
    EXPECT_EQ(OfSequence::Sent(Sequence()).varId.data, std::string(32, ' '));
}

} // namespace
} // namespace Talvo::Tests
