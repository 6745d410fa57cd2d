#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeBuilder.h"
#include "TimePoints/TimeCodeText.h"
#include "tests/TimePoints/TimeCodeDefinition.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::TimePoints
{

namespace
{

/// Compares every way of reading `text` with the definition, and returns the result of the definition.
std::string CompareWithDefinition(std::string const& text)
{
    TalvoTimeCodeParser const parser;
    auto const expected = ReferenceOutcome(text);
    bool const good = expected.find(": ") == std::string::npos;

    EXPECT_EQ(Outcome([&] { return Describe(parser.Parse(text)); }), expected) << text;
    EXPECT_EQ(Outcome([&] { return std::string{parser.IsStringFormatValid(text) ? "true" : "false"}; }),
              expected == "out_of_range: stoi" ? expected : std::string{good ? "true" : "false"})
        << text;
    auto const [success, timeCode] = parser.TryParse(text);
    EXPECT_EQ(success, good) << text;
    EXPECT_EQ(timeCode, good ? parser.Parse(text) : TimeCode::Empty()) << text;
    auto const read = ReadTimeCode(text);
    EXPECT_EQ(read.has_value(), good) << text;
    EXPECT_EQ(read.value_or(TimeCode::Empty()), timeCode) << text;
    return expected;
}

TEST(TimeCodeText, UndatedTimeCodesCanNotBeParsedAgain)
{
    TimeCodeBuilder builder{.minute = 1, .sample = 2, .numerator = 30, .dropFrame = true, .dated = false};
    auto const undated = TalvoTimeCodeFormatter().Format(builder.Build());
    EXPECT_EQ(undated, "-1-0-1-0-1T00:01:00;02@30");
    EXPECT_THROW(TalvoTimeCodeParser{}.Parse(undated), std::invalid_argument);
    builder.numerator = 100;
    builder.dropFrame = false;
    EXPECT_EQ(TalvoTimeCodeFormatter().Format(builder.Build()), "-1-0-1-0-1T00:01:00:02@100");
}

TEST(TimeCodeText, ParsesEdgeCasesAsDefined)
{
    std::pair<char const*, char const*> const rows[] = {
        {"2000-02-29T12:00:00:00@25", "79020360000 at 25 dated"},
        {"1900-02-29T12:00:00:00@25", "out_of_range: day 29is negative or greater than 28 in month 2"},
        {"0999-01-01T00:00:00:00@25",
         "invalid_argument: TalvoTimeCodeParser the string '0999-01-01T00:00:00:00@25' has not the expected format."},
        {"1899-12-31T23:59:59:24@25", "out_of_range: year 1899 must be between 1900 and 2261"},
        {"9999-19-39T29:59:59:99@25", "out_of_range: year 9999 must be between 1900 and 2261"},
        {"23:59:59:24@25", "55226879999 at 25"},
        {"24:00:00:00@25", "out_of_range: hour 24 must be between 0 and 23"},
        {"30:00:00:00@25",
         "invalid_argument: TalvoTimeCodeParser the string '30:00:00:00@25' has not the expected format."},
        {"00:00:00:25@25", "out_of_range: Sample 25 is greater than numerator ratio 25"},
        {"00:01:00;00@30", "out_of_range: In dropped TimeCode, this value doesn't exist 1:0;0"},
        {"00:01:00;02@30", "66203396136 at 30 drop"},
        {"00:10:00;00@30", "66203412318 at 30 drop"},
        {"00:00:00;00@25", "out_of_range: Rate 25 / 1 is not compatible with drop TC format"},
        {"00:00:00:00@0", "out_of_range: Sample 0 is greater than numerator ratio 0"},
        {"00:00:00:00@0000000000000000000000000025", "55224720000 at 25"},
        {"00:00:00:00@2147483647", "4743767324406153600 at 2147483647"},
        // A rate that is too large is reported before any other bad value.
        {"00:00:00:00@2147483648", "out_of_range: stoi"},
        {"2262-13-39T29:00:00;00@99999999999999999999999", "out_of_range: stoi"},
        {"", "invalid_argument: TalvoTimeCodeParser the string '' has not the expected format."},
    };
    for (auto const& [text, outcome] : rows) EXPECT_EQ(CompareWithDefinition(text), outcome);

    for (std::string const text : {"2000-02-29T12:34:56;07@60", "12:34:56:07@50"})
        for (std::size_t position = 0; position <= text.size(); ++position)
        {
            CompareWithDefinition(text.substr(0, position));
            CompareWithDefinition(text.substr(position));
            for (int byte = 0; byte < 256; ++byte)
            {
                auto inserted = text;
                CompareWithDefinition(inserted.insert(position, 1, static_cast<char>(byte)));
                if (position < text.size()) CompareWithDefinition(inserted.erase(position + 1, 1));
            }
        }
    for (std::string const text : {"12:34:56:07@50\r\n", "\n12:34:56:07@50", "x\n12:34:56:07@50\ny", "12:34:56:07@+50",
                                   "12:34:56:07@-50", "12:34:56:07@ 50", "12:34:56:07@50\n12:34:56:07@50"})
        EXPECT_EQ(CompareWithDefinition(text).find("invalid_argument"), 0u);
}

TEST(TimeCodeText, ParsesMutatedTextsAsDefined)
{
    std::mt19937 random{20000229};
    auto const below = [&](std::size_t bound) { return static_cast<std::size_t>(random() % bound); };
    auto const pick = [&](std::vector<std::string> const& choices) { return choices[below(choices.size())]; };
    std::string const alphabet{"0123456789:;-T@ \n\r+x\0\xB2", 22};
    std::map<char, int> kinds;

    for (int count = 0; count < 200'000; ++count)
    {
        std::string text;
        if (below(2) == 0)
            text = pick({"1899", "1900", "2000", "2004", "2100", "2261", "2262"}) + "-" +
                   pick({"00", "01", "02", "04", "12", "13"}) + "-" + pick({"00", "01", "28", "29", "30", "31"}) + "T";
        text += pick({"00", "12", "23", "24"}) + ":" + pick({"00", "01", "10", "59"}) + ":" +
                pick({"00", "00", "01", "59"}) + pick({":", ";"}) + pick({"00", "01", "02", "03", "04", "24", "29"}) +
                "@" +
                pick({"0", "24", "25", "30", "30", "60", "60", "2147483647", "2147483648", "18446744073709551641"});
        for (auto mutations = below(4); mutations > 1; --mutations)
        {
            auto const position = below(text.size());
            auto const character = alphabet[below(alphabet.size())];
            switch (below(4))
            {
            case 0:
                text[position] = character;
                break;
            case 1:
                text.insert(position, 1, character);
                break;
            case 2:
                text.erase(position, 1);
                break;
            default:
                text += character;
                break;
            }
        }
        auto const outcome = CompareWithDefinition(text);
        ++kinds[outcome == "out_of_range: stoi" ? 's' : outcome.front()];
        ASSERT_FALSE(HasFailure());
    }
    // Valid texts, bad values, rates that are too large and texts of neither form must all occur often.
    EXPECT_GT(200'000 - kinds['o'] - kinds['s'] - kinds['i'], 10'000);
    for (char const kind : {'o', 's', 'i'}) EXPECT_GT(kinds[kind], 10'000) << kind;
}

TEST(TimeCodeText, ParseOfADerivedClassDecidesTryParse)
{
    struct OfFilm : TalvoTimeCodeParser
    {
        TimeCode Parse(std::string const& text) const override
        {
            if (text == "bad") throw 7; // not derived from std::exception
            return text == "good" ? TimeCodeBuilder{.numerator = 24}.Build() : TalvoTimeCodeParser::Parse(text);
        }
    };
    OfFilm const ofFilm;
    TimeCodeParser const& parser = ofFilm;
    EXPECT_EQ(parser.TryParse("good"), std::pair(true, TimeCodeBuilder{.numerator = 24}.Build()));
    EXPECT_EQ(parser.TryParse("00:00:00:00@25"), std::pair(true, parser.Parse("00:00:00:00@25")));
    for (auto const* const text : {"bad", "neither", "24:00:00:00@25", "00:00:00:00@2147483648"})
        EXPECT_EQ(parser.TryParse(text), std::pair(false, TimeCode::Empty())) << text;
}

/// Runs on a small stack, which a matcher that recurses for each character would overflow.
void* ReadLongTexts(void*)
{
    TalvoTimeCodeParser const parser;
    std::string const digits(1'000'000, '1');
    std::string const zeros(1'000'000, '0');
    EXPECT_EQ(Outcome([&] { return Describe(parser.Parse("00:00:00:00@" + zeros + "25")); }), "55224720000 at 25");
    EXPECT_EQ(Outcome([&] { return Describe(parser.Parse("2000-01-01T00:00:00:00@" + digits)); }),
              "out_of_range: stoi");
    for (auto const& text : {digits, "2000-01-01T00:00:00:00@25" + digits + "x", "00:00:00:00@" + digits + "\n"})
    {
        EXPECT_FALSE(parser.IsStringFormatValid(text));
        EXPECT_FALSE(parser.TryParse(text).first);
        EXPECT_THROW(parser.Parse(text), std::invalid_argument);
    }
    return nullptr;
}

TEST(TimeCodeText, LongTextsNeedNoDeepStack)
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, ReadLongTexts, nullptr), 0);
    EXPECT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

} // namespace

} // namespace Talvo::TimePoints
