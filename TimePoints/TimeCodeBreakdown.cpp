#include "TimePoints/TimeCodeBreakdown.h"

#include "TimePoints/SampleUnits.h"

#include <chrono>

namespace Talvo::TimePoints
{

namespace
{

/// The units of an enormous rate may have wrapped to zero: nothing is counted in them then.
constexpr std::int64_t Quotient(std::int64_t dividend, std::int64_t divisor) noexcept
{
    return divisor == 0 ? 0 : dividend / divisor;
}

constexpr std::int64_t Remainder(std::int64_t dividend, std::int64_t divisor) noexcept
{
    return divisor == 0 ? 0 : dividend % divisor;
}

/// The count of a drop-frame time of day in a counting that drops no number.
std::int64_t WithDroppedNumbers(std::int64_t count, std::int64_t numerator, std::int64_t addedBack) noexcept
{
    auto const perMinute = 60 * numerator;
    auto const perTenMinutes = 10 * perMinute;
    std::int64_t total = 0;
    std::int64_t step = 0;
    do
    {
        total += step;
        step = count / perMinute - count / perTenMinutes - total;
        count += addedBack * step;
    } while (step != 0);
    return count;
}

} // namespace

TimeCodeBreakdown::TimeCodeBreakdown(TimeCode const& timeCode) noexcept
{
    auto const numerator = timeCode.Rate().numerator;
    if (numerator <= 0) return;

    auto const units = SampleUnits::Of(numerator, timeCode.DropFrame());
    auto const days = Quotient(timeCode.Sample(), units.perDay);
    auto x = Remainder(timeCode.Sample(), units.perDay);
    if (timeCode.DropFrame()) x = WithDroppedNumbers(x, numerator, units.addedBack);

    auto const nominal = SampleUnits::Of(numerator, false);
    frame = x % numerator;
    second = Remainder(x, nominal.perMinute) / numerator;
    minute = Quotient(Remainder(x, nominal.perHour), nominal.perMinute);
    hour = Quotient(x, nominal.perHour);

    // The calendar repeats every 400 years, so the days of whole cycles are skipped.
    constexpr std::int64_t daysPerCycle = 146097;
    constexpr std::chrono::sys_days origin{std::chrono::January / 1 / 1900};
    if (days < 0)
    {
        // Before the origin, where only a negative count lies, there is no calendar: the day goes below 1.
        year = 1900;
        month = 1;
        day = days + 1;
        return;
    }
    std::chrono::year_month_day const date{origin + std::chrono::days{days % daysPerCycle}};
    year = int{date.year()} + days / daysPerCycle * 400;
    month = unsigned{date.month()};
    day = unsigned{date.day()};
}

} // namespace Talvo::TimePoints
