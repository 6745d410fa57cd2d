#include "TimePoints/TimeCode.h"

#include "TimePoints/CalendarTools.h"
#include "TimePoints/SampleUnits.h"

#include <algorithm>

namespace Talvo::TimePoints
{

namespace
{

/// The leap years from the year 1 to `year`, which is positive.
constexpr std::int64_t LeapYearsUpTo(std::int64_t year) noexcept
{
    return year / 4 - year / 100 + year / 400;
}

/// The days from 1900-01-01 to the first of January of `year`; 0 for an earlier year.
constexpr std::int64_t DaysBeforeYear(int year) noexcept
{
    std::int64_t const lastYear = std::max(year, 1900) - 1;
    return 365 * (lastYear - 1899) + LeapYearsUpTo(lastYear) - LeapYearsUpTo(1899);
}

static_assert(DaysBeforeYear(1900) == 0 && DaysBeforeYear(1970) == 25567);

/// The days of the months of `year` before `month`.
constexpr std::int64_t DaysBeforeMonth(int year, int month) noexcept
{
    bool const isLeapYear = CalendarTools::IsLeapYear(year);
    int days = 0;
    for (int earlier = 1; earlier < std::min(month, 13); ++earlier)
        days += CalendarTools::DayPerMonth(isLeapYear, earlier);
    return days;
}

} // namespace

TimeCode const& TimeCode::Empty() noexcept
{
    static constexpr TimeCode empty;
    return empty;
}

void TimeCode::DateTimeToSample(int year, int month, int day, int hour, int minute, int second, int sample) noexcept
{
    DaysAndTimeToSample(DaysBeforeYear(year) + DaysBeforeMonth(year, month) + day - 1, hour, minute, second, sample);
}

void TimeCode::DaysAndTimeToSample(std::int64_t days, int hour, int minute, int second, int sample) noexcept
{
    auto const units = SampleUnits::Of(rate_.numerator, dropFrame_);

    // Unsigned, so that a count that leaves 64 bits wraps.
    auto const product = [](std::int64_t count, std::int64_t unit)
    { return static_cast<std::uint64_t>(count) * static_cast<std::uint64_t>(unit); };

    sample_ = static_cast<std::int64_t>(product(days, units.perDay) + product(hour, units.perHour) +
                                        product(minute, units.perMinute) + product(minute / 10, units.addedBack) +
                                        product(second, rate_.numerator) + static_cast<std::uint64_t>(sample));
    empty_ = false;
}

} // namespace Talvo::TimePoints
