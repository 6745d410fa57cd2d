#pragma once

// Internal, never installed: the arithmetic between calendar and clock fields and a count of samples. It is
// defined for every input: values that exceed 64 bits wrap.

#include "TimePoints/CalendarTools.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace Talvo::TimePoints
{

/// The samples of a rate per unit of time.
struct SampleUnits
{
    std::int64_t perDay;
    std::int64_t perHour;
    std::int64_t perMinute;
    /// The samples that drop-frame counting adds back every ten minutes, because the first minute drops no numbers.
    std::int64_t addedBack;

    static constexpr SampleUnits Of(std::int64_t numerator, bool dropFrame) noexcept
    {
        if (dropFrame && numerator == 30) return {2589408, 107892, 1798, 2};
        if (dropFrame && numerator == 60) return {5178816, 215784, 3596, 4};

        auto const n = static_cast<std::uint64_t>(numerator);
        return {static_cast<std::int64_t>(86400 * n), static_cast<std::int64_t>(3600 * n),
                static_cast<std::int64_t>(60 * n), dropFrame ? 2 : 0};
    }
};

/// The number of leap years from the year 1 to `year`.
constexpr unsigned LeapYearsUpTo(unsigned year) noexcept
{
    return year / 4 - year / 100 + year / 400;
}

/// The days from 1900-01-01 to January 1 of `year`; 0 for an earlier year.
constexpr std::int64_t DaysBeforeYear(int year) noexcept
{
    auto const lastYear = static_cast<unsigned>(std::max(year, 1900) - 1);
    return 365 * std::int64_t{lastYear - 1899} + (LeapYearsUpTo(lastYear) - LeapYearsUpTo(1899));
}

/// The days before each month, from 1, in an ordinary year and in a leap year. Month 13 stands for the whole year.
inline constexpr auto DaysBeforeMonthTable = []
{
    std::array<std::array<int, 14>, 2> days{};
    for (int month = 1; month <= 12; ++month)
    {
        auto const index = static_cast<std::size_t>(month);
        days[0][index + 1] = days[0][index] + CalendarTools::DayPerMonth(false, month);
        days[1][index + 1] = days[1][index] + CalendarTools::DayPerMonth(true, month);
    }
    return days;
}();

/// The days of the months of `year` before `month`; a month outside 1 to 12 has no days.
constexpr int DaysBeforeMonth(int year, int month) noexcept
{
    return DaysBeforeMonthTable[CalendarTools::IsLeapYear(year) ? 1 : 0]
                               [static_cast<std::size_t>(std::clamp(month, 1, 13))];
}

/// The days from 1900-01-01 to a date.
constexpr std::int64_t DaysSinceOrigin(int year, int month, int day) noexcept
{
    return DaysBeforeYear(year) + DaysBeforeMonth(year, month) + day - 1;
}

/// The samples from 1900-01-01 00:00:00 to a time of day, `days` later.
constexpr std::int64_t SamplesSinceOrigin(std::int64_t numerator, bool dropFrame, std::int64_t days, int hour,
                                          int minute, int second, int sample) noexcept
{
    constexpr auto product = [](std::int64_t count, std::int64_t unit)
    { return static_cast<std::uint64_t>(count) * static_cast<std::uint64_t>(unit); };

    auto const units = SampleUnits::Of(numerator, dropFrame);
    return static_cast<std::int64_t>(product(days, units.perDay) + product(hour, units.perHour) +
                                     product(minute, units.perMinute) + product(minute / 10, units.addedBack) +
                                     product(second, numerator) + static_cast<std::uint64_t>(sample));
}

} // namespace Talvo::TimePoints
