#include "TimePoints/CalendarTools.h"
#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeBreakdown.h"
#include "TimePoints/TimeCodeBuilder.h"
#include "TimePoints/TimeCodeText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::TimePoints
{

namespace
{

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Least = std::numeric_limits<int>::min();
constexpr std::int64_t Most64 = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Least64 = std::numeric_limits<std::int64_t>::min();

std::string Text(TimeCode const& timeCode)
{
    return TalvoTimeCodeFormatter{}.Format(timeCode);
}

/// Returns the text of the failure, or "valid".
std::string Judge(TimeCodeBuilder const& builder)
{
    try
    {
        return builder.IsValidToBuildWithexception() ? "valid" : "false";
    }
    catch (std::out_of_range const& failure)
    {
        return failure.what();
    }
}

TEST(TimeCode, EmptyHasTheFieldsOfTheOriginButEqualsNoBuiltTimeCode)
{
    TimeCode timeCode = TimeCode::Empty();
    EXPECT_EQ(timeCode, TimeCode{});
    EXPECT_EQ(timeCode.Rate(), (VideoRate{50, 1}));
    EXPECT_EQ(timeCode.Sample(), 0);
    EXPECT_FALSE(timeCode.DropFrame());
    EXPECT_TRUE(timeCode.Dated());

    TimeCodeBuilder const origin{.year = 1900, .month = 1, .day = 1, .numerator = 50};
    EXPECT_NE(timeCode, origin.Build());
    timeCode.DateTimeToSample(1900, 1, 1, 0, 0, 0, 0);
    EXPECT_EQ(timeCode, origin.Build());
}

TEST(TimeCodeBuilder, ValidatesInOrder)
{
    std::pair<TimeCodeBuilder, char const*> const rows[] = {
        {{.year = 1900}, "valid"},
        {{.year = 1899, .month = 0}, "year 1899 must be between 1900 and 2261"},
        {{.year = 2261}, "valid"},
        {{.year = 2262}, "year 2262 must be between 1900 and 2261"},
        {{.month = 0, .day = 0}, "month 0 must be between 1 and 12"},
        {{.month = 13}, "month 13 must be between 1 and 12"},
        {{.month = 4, .day = 31, .hour = 24}, "day 31is negative or greater than 30 in month 4"},
        {{.year = 2000, .month = 2, .day = 29}, "valid"},
        {{.year = 1900, .month = 2, .day = 29}, "day 29is negative or greater than 28 in month 2"},
        {{.year = 2001, .month = 2, .day = 29}, "day 29is negative or greater than 28 in month 2"},
        {{.day = 0}, "day 0is negative or greater than 31 in month 1"},
        {{.year = 2001, .month = 2, .day = 29, .dated = false}, "day 29is negative or greater than 28 in month 2"},
        {{.hour = 24, .minute = 60}, "hour 24 must be between 0 and 23"},
        {{.hour = -1}, "hour -1 must be between 0 and 23"},
        {{.minute = 60, .second = 60}, "minute 60 must be between 0 and 59"},
        {{.minute = -1}, "minute -1 must be between 0 and 59"},
        {{.second = 60, .denominator = 0}, "second 60 must be between 0 and 59"},
        {{.second = -1}, "second -1 must be between 0 and 59"},
        {{.sample = 99, .denominator = 1001}, "Denominator 1001 must be between equals to 1"},
        {{.hour = 23, .minute = 59, .second = 59, .sample = 24, .numerator = 25}, "valid"},
        {{.sample = 25, .numerator = 25, .dropFrame = true}, "Sample 25 is greater than numerator ratio 25"},
        {{.sample = 0, .numerator = Least64}, "Sample 0 is greater than numerator ratio -9223372036854775808"},
        {{.sample = -1, .numerator = 0}, "valid"},
        {{.minute = 1, .sample = 0, .numerator = 30, .dropFrame = true},
         "In dropped TimeCode, this value doesn't exist 1:0;0"},
        {{.minute = 59, .sample = 1, .numerator = 30, .dropFrame = true},
         "In dropped TimeCode, this value doesn't exist 59:0;1"},
        {{.minute = 1, .sample = 2, .numerator = 30, .dropFrame = true}, "valid"},
        {{.minute = 1, .sample = 3, .numerator = 60, .dropFrame = true},
         "In dropped TimeCode, this value doesn't exist 1:0;3"},
        {{.minute = 1, .sample = 4, .numerator = 60, .dropFrame = true}, "valid"},
        {{.minute = 10, .numerator = 30, .dropFrame = true}, "valid"},
        {{.minute = 1, .second = 1, .numerator = 60, .dropFrame = true}, "valid"},
        // The dropped numbers are checked before the rate.
        {{.minute = 1, .sample = 2, .numerator = 25, .dropFrame = true},
         "In dropped TimeCode, this value doesn't exist 1:0;2"},
        {{.minute = 1, .sample = 4, .numerator = 25, .dropFrame = true},
         "Rate 25 / 1 is not compatible with drop TC format"},
        {{.numerator = 25, .dropFrame = true}, "Rate 25 / 1 is not compatible with drop TC format"},
    };
    for (auto const& [builder, text] : rows)
    {
        EXPECT_EQ(Judge(builder), text);
        if (Judge(builder) == "valid")
            EXPECT_NO_THROW(builder.Build());
        else
            EXPECT_THROW(builder.Build(), std::out_of_range);
    }
}

TEST(TimeCodeBuilder, UndatedTimeCodesAreWithinOneDay)
{
    TimeCodeBuilder builder{.year = 2261, .month = 12, .day = 31, .second = 1, .sample = 2, .numerator = 25};
    builder.dated = false;
    auto const timeCode = builder.Build();
    EXPECT_FALSE(timeCode.Dated());
    EXPECT_EQ(timeCode.Sample(), 25567LL * 86400 * 25 + 27);
    builder.year = 1950;
    EXPECT_EQ(builder.Build(), timeCode);
    builder.dated = true;
    EXPECT_NE(builder.Build(), timeCode);
}

// Another program computed these counts and texts from the definition of the arithmetic.
TEST(TimeCode, ConvertsEveryInputToAndFromSamples)
{
    struct Row
    {
        std::int64_t numerator;
        bool dropFrame;
        int year, month, day, hour, minute, second, frame;
        std::int64_t sample;
        char const* text;
    };
    Row const rows[] = {
        {25, false, 2000, 2, 29, 12, 0, 0, 0, 79020360000, "2000-02-29T12:00:00:00@25"},
        {30, true, 2000, 1, 1, 0, 1, 0, 2, 94575539592, "2000-01-01T00:01:00;02@30"},
        {30, true, 1900, 1, 2, 0, 0, 0, 0, 2589408, "1900-01-02T00:00:00;00@30"},
        {60, true, 2261, 12, 31, 23, 59, 59, 59, 684732693887, "2261-12-31T23:59:59;59@60"},
        {120, false, 1900, 1, 1, 0, 0, 0, 119, 119, "1900-01-01T00:00:00:119@120"},
        // The smallest and the largest number of digits of an ordinary year and rate, and one more.
        {9, false, 2000, 1, 1, 0, 0, 0, 8, 28401062408, "2000-01-01T00:00:00:08@9"},
        {10, false, 9999, 12, 31, 23, 59, 59, 9, 2556112895999, "9999-12-31T23:59:59:09@10"},
        {99, false, 9999, 12, 31, 23, 59, 59, 98, 25305517670399, "9999-12-31T23:59:59:98@99"},
        {99, false, 10000, 1, 1, 0, 0, 0, 0, 25305517670400, "10000-01-01T00:00:00:00@99"},
        {100, false, 2000, 1, 1, 0, 0, 0, 99, 315567360099, "2000-01-01T00:00:00:99@100"},
        // A year before the origin counts no days, but has the February of that year.
        {50, false, 1896, 3, 1, 0, 0, 0, 0, 259200000, "1900-03-02T00:00:00:00@50"},
        {30, true, 1900, 1, 1, -1, -1, -1, -1, -109721, "1900-01-01T0-1:0-1:0-1;0-1@30"},
        // Distant years take no longer.
        {24, false, Most, 12, 31, 23, 59, 59, 23, 1626431482620518399, "2147483647-12-31T23:59:59:23@24"},
        {50, false, Most, Most, Most, Most, Most, Most, Most, 3398069150505866997, "2153612394-10-08T14:48:59:47@50"},
        {30, true, Most, Most, Most, Most, Most, Most, Most, 2036802649737923135, "2153612395-09-30T17:29:02;29@30"},
        {60, true, Least, Least, Least, Least, Least, Least, Least, -11592669499373808,
         "1900-01-0-2238478736T0-2:0-29:0-42;0-36@60"},
        // Counts beyond 64 bits wrap.
        {Most, false, 2261, 12, 31, 23, 59, 59, 0, 6085325705436539137, "1989-10-18T11:03:22:2147483643@2147483647"},
        {Most64, false, 1900, 1, 1, 1, 0, 0, 5, -3595, "1900-01-01T00:00:00:0-3595@9223372036854775807"},
        // A rate that is not positive gives zeros.
        {0, false, 1900, 1, 1, 23, 59, 59, -1, -1, "0-00-00T00:00:00:00@0"},
        {-1, false, 1900, 1, 1, 0, 0, 0, Least, Least, "0-00-00T00:00:00:00@-1"},
        {-Most, false, 1900, 1, 1, 0, 0, 1, 0, -Most, "0-00-00T00:00:00:00@-2147483647"},
    };
    for (auto const& row : rows)
    {
        // The smallest frame is below every rate of the table.
        auto timeCode =
            TimeCodeBuilder{.sample = Least, .numerator = row.numerator, .dropFrame = row.dropFrame}.Build();
        timeCode.DateTimeToSample(row.year, row.month, row.day, row.hour, row.minute, row.second, row.frame);
        EXPECT_EQ(timeCode.Sample(), row.sample) << row.text;
        EXPECT_EQ(Text(timeCode), row.text);
    }
}

TEST(TimeCode, CountsEveryDayOfTheCalendar)
{
    auto timeCode = TimeCodeBuilder{.numerator = 30, .dropFrame = true}.Build();
    std::int64_t days = 0;
    for (int year = 1900; year < 2700; ++year)
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= CalendarTools::DayPerMonth(year, month); ++day, ++days)
            {
                timeCode.DateTimeToSample(year, month, day, 23, 59, 59, 29);
                ASSERT_EQ(timeCode.Sample(), (days + 1) * 2589408 - 1);
                TimeCodeBreakdown const pieces{timeCode};
                ASSERT_TRUE(pieces.year == year && pieces.month == month && pieces.day == day) << Text(timeCode);
                ASSERT_TRUE(year > 2261 || TalvoTimeCodeParser{}.Parse(Text(timeCode)) == timeCode) << Text(timeCode);
            }
    EXPECT_EQ(days, 2 * 146097);
    EXPECT_EQ(CalendarTools::DayPerMonth(2000, 0) + CalendarTools::DayPerMonth(2000, 13), 0);
}

std::string Digits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// Checks all frames of a day. The sample counts must be consecutive.
void EveryFrameThereAndBack(int rate, bool dropFrame, int expected)
{
    TimeCodeBuilder builder{.year = 2000, .month = 2, .day = 29, .numerator = rate, .dropFrame = dropFrame};
    auto const midnight = builder.Build().Sample();
    auto negative = builder.Build();
    std::vector<std::string> endings;
    for (int frame = 0; frame < rate; ++frame) endings.push_back(Digits(frame) + '@' + std::to_string(rate));
    std::string written;
    int frames = 0;

    for (builder.hour = 0; builder.hour < 24; ++builder.hour)
        for (builder.minute = 0; builder.minute < 60; ++builder.minute)
            for (builder.second = 0; builder.second < 60; ++builder.second)
            {
                auto text = "2000-02-29T" + Digits(builder.hour) + ':' + Digits(builder.minute) + ':' +
                            Digits(builder.second) + (dropFrame ? ';' : ':');
                auto const end = text.size();
                bool const drops = dropFrame && builder.minute % 10 != 0 && builder.second == 0;
                for (builder.sample = drops ? rate / 15 : 0; builder.sample < rate; ++builder.sample, ++frames)
                {
                    text.replace(end, text.npos, endings[static_cast<std::size_t>(builder.sample)]);
                    auto const read = ReadTimeCode(text);
                    ASSERT_TRUE(read.has_value() == (builder.sample < 100)) << text; // no room for three digits
                    auto const timeCode = read ? *read : builder.Build();
                    WriteTimeCode(timeCode, written);
                    ASSERT_TRUE(timeCode.Sample() == midnight + frames && written == text) << written << ", " << text;

                    // Negative counts mirror positive ones. Only the first frames and the last of a second are checked.
                    if (builder.sample > rate / 15 && builder.sample < rate - 1) continue;
                    negative.DateTimeToSample(1900, 1, 1, 0, 0, 0, -frames);
                    TimeCodeBreakdown const mirror{negative};
                    ASSERT_TRUE(mirror.hour == -builder.hour && mirror.minute == -builder.minute &&
                                mirror.second == -builder.second && mirror.frame == -builder.sample)
                        << text;
                }
            }
    EXPECT_EQ(frames, expected);
}

TEST(TimeCode, RoundTripsEveryFrameOfADay)
{
    for (int const rate : {24, 25, 30, 48, 50, 60, 100, 120}) EveryFrameThereAndBack(rate, false, 86400 * rate);
    EveryFrameThereAndBack(30, true, 2589408);
    EveryFrameThereAndBack(60, true, 5178816);
}

} // namespace

} // namespace Talvo::TimePoints
