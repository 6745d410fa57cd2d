#include "TimePoints/TimeCodeBreakdown.h"

#include <chrono>

namespace Talvo::TimePoints
{

TimeCodeBreakdown::TimeCodeBreakdown(TimeCode const& timeCode) noexcept
{
    if (timeCode.Rate().numerator <= 0) return;

    auto const [days, secondOfDay, frameOfSecond] = SplitSample(timeCode);
    hour = secondOfDay / 3600;
    minute = secondOfDay / 60 % 60;
    second = secondOfDay % 60;
    frame = frameOfSecond;

    if (days < 0)
    {
        // There is no calendar before the origin, which only a negative count reaches: the day goes below 1.
        year = 1900;
        month = 1;
        day = days + 1;
        return;
    }
    // The calendar repeats every 400 years, so only the days within one cycle need a date.
    constexpr std::int64_t daysPerCycle = 146097;
    constexpr std::chrono::sys_days origin{std::chrono::January / 1 / 1900};
    std::chrono::year_month_day const date{origin + std::chrono::days{days % daysPerCycle}};
    year = int{date.year()} + days / daysPerCycle * 400;
    month = unsigned{date.month()};
    day = unsigned{date.day()};
}

} // namespace Talvo::TimePoints
