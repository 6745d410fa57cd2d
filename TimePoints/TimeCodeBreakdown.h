#pragma once

// Internal, never installed.

#include "TimePoints/SampleCounting.h"
#include "TimePoints/TimeCode.h"

#include <cstdint>

namespace Talvo::TimePoints
{

/// The sample count of a time code with a positive rate, split into days and the time within the last day.
struct DayAndTime
{
    std::int64_t days;
    int secondOfDay;
    std::int64_t frame;
};

/// Computes seconds first: the other divisions are then by constants, and even for a large rate no unit has to fit 64
/// bits.
inline DayAndTime SplitNonDrop(std::int64_t sample, std::int64_t numerator) noexcept
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

    // Adds back the dropped numbers of every minute, until no further minute is reached.
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

inline DayAndTime SplitSample(TimeCode const& timeCode) noexcept
{
    auto const numerator = timeCode.Rate().numerator;
    if (!timeCode.DropFrame()) return SplitNonDrop(timeCode.Sample(), numerator);
    // No other rate has drop-frame counting.
    return numerator == 30 ? SplitDropFrame<30>(timeCode.Sample()) : SplitDropFrame<60>(timeCode.Sample());
}

/// The date and clock fields of a time code. Divisions truncate toward zero, so a negative count gives negative fields;
/// only a negative frame or a wrapped count is negative. All fields are 0 if the rate is not positive.
struct TimeCodeBreakdown
{
    std::int64_t year = 0;
    std::int64_t month = 0;
    std::int64_t day = 0;
    std::int64_t hour = 0;
    std::int64_t minute = 0;
    std::int64_t second = 0;
    std::int64_t frame = 0;

    explicit TimeCodeBreakdown(TimeCode const& timeCode) noexcept;
};

} // namespace Talvo::TimePoints
