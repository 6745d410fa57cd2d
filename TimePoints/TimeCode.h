#pragma once

#include "TimePoints/VideoRate.h"

#include <cstdint>
#include <type_traits>

namespace Talvo::TimePoints
{

/// A position in video: a count of samples since 1900-01-01 00:00:00 and the rate that gives the count its meaning.
/// TimeCodeBuilder makes one from calendar and clock fields. A plain value; two are equal when all their fields are.
class TimeCode
{
public:
    /// The value of Empty().
    constexpr TimeCode() noexcept = default;

    /// No time code. It reads as the origin (rate 50/1, sample 0, not drop-frame, dated) and formats as that, but it is
    /// equal to no time code that was built or parsed, the one at the origin included.
    static TimeCode const& Empty() noexcept;

    /// The nominal integer rate, in samples per second; its denominator is 1.
    VideoRate const& Rate() const noexcept { return rate_; }
    /// Samples since 1900-01-01 00:00:00.
    std::int64_t Sample() const noexcept { return sample_; }
    /// Drop-frame counting (SMPTE ST 12-1) is in force; only with rate 30 or 60.
    bool DropFrame() const noexcept { return dropFrame_; }
    /// The value has a real date. An undated one lies on 1970-01-01.
    bool Dated() const noexcept { return dated_; }

    /// Sets the sample count from a date and a time of day, at the rate and counting of this time code, which from then
    /// on is not empty. Nothing is checked: a year before 1900 counts as 1900 (but keeps the month lengths of its own),
    /// a month outside 1 to 12 has no days, and a count that leaves 64 bits wraps.
    void DateTimeToSample(int year, int month, int day, int hour, int minute, int second, int sample) noexcept;

    bool operator==(TimeCode const&) const = default;

private:
    friend struct TimeCodeBuilder;

    constexpr TimeCode(VideoRate rate, std::int64_t sample, bool dropFrame, bool dated) noexcept
        : rate_(rate)
        , sample_(sample)
        , dropFrame_(dropFrame)
        , dated_(dated)
        , empty_(false)
    {
    }

    VideoRate rate_{50, 1};
    std::int64_t sample_ = 0;
    bool dropFrame_ = false;
    bool dated_ = true;
    // Part of equality: without it, "no time code" and a clip's default time code, which has the same fields, could not
    // be told apart.
    bool empty_ = true;
};

static_assert(std::is_trivially_copyable_v<TimeCode>);

} // namespace Talvo::TimePoints
