#include "TimePoints/TimeCodeBreakdown.h"

#include "TimePoints/SampleCounting.h"

#include <chrono>

namespace Talvo::TimePoints
{

namespace
{

struct DayAndTime
{
    std::int64_t days;
    int secondOfDay;
    std::int64_t frame;
};

/// Seconds first: what follows divides by constants, and no unit of a rate, however large, has to fit 64 bits.
DayAndTime SplitNonDrop(std::int64_t sample, std::int64_t numerator) noexcept
{
    auto const seconds = sample / numerator;
    return {seconds / 86400, static_cast<int>(seconds % 86400), sample % numerator};
}

template<int numerator>
DayAndTime SplitDropFrame(std::int64_t sample) noexcept
{
    constexpr auto units = SampleUnits::Of(numerator, true);
    constexpr int perMinute = 60 * numerator;
    constexpr int perTenMinutes = 10 * perMinute;

    // Puts the dropped numbers of every minute back, until no further minute is reached.
    int count = static_cast<int>(sample % units.perDay);
    int total = 0;
    int step = 0;
    do
    {
        total += step;
        step = count / perMinute - count / perTenMinutes - total;
        count += static_cast<int>(units.addedBack) * step;
    } while (step != 0);

    return {sample / units.perDay, count / numerator, count % numerator};
}

DayAndTime Split(TimeCode const& timeCode) noexcept
{
    auto const numerator = timeCode.Rate().numerator;
    if (!timeCode.DropFrame()) return SplitNonDrop(timeCode.Sample(), numerator);
    // No other rate has drop-frame counting.
    return numerator == 30 ? SplitDropFrame<30>(timeCode.Sample()) : SplitDropFrame<60>(timeCode.Sample());
}

} // namespace

TimeCodeBreakdown::TimeCodeBreakdown(TimeCode const& timeCode) noexcept
{
    if (timeCode.Rate().numerator <= 0) return;

    auto const [days, secondOfDay, frameOfSecond] = Split(timeCode);
    hour = secondOfDay / 3600;
    minute = secondOfDay / 60 % 60;
    second = secondOfDay % 60;
    frame = frameOfSecond;

    if (days < 0)
    {
        // There is no calendar before the origin, where only a negative count lies: the day goes below 1.
        year = 1900;
        month = 1;
        day = days + 1;
        return;
    }
    // The calendar repeats every 400 years, so that only the days of one such cycle need a date.
    constexpr std::int64_t daysPerCycle = 146097;
    constexpr std::chrono::sys_days origin{std::chrono::January / 1 / 1900};
    std::chrono::year_month_day const date{origin + std::chrono::days{days % daysPerCycle}};
    year = int{date.year()} + days / daysPerCycle * 400;
    month = unsigned{date.month()};
    day = unsigned{date.day()};
}

} // namespace Talvo::TimePoints
