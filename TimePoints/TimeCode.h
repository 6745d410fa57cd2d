#pragma once

#include "TimePoints/VideoRate.h"

#include <cstdint>
#include <type_traits>

namespace Talvo::TimePoints
{

/// A position in video: a count of samples since 1900-01-01 00:00:00 and the rate that gives the count its meaning.
/// TimeCodeBuilder builds one from calendar and clock fields. Two time codes are equal if all their fields are equal.
class TimeCode
{
public:
    /// Constructs the value of Empty().
    constexpr TimeCode() noexcept = default;

    /// The value for "no time code". Its getters return those of the origin (rate 50/1, sample 0, not drop-frame,
    /// dated), and it is formatted like the origin, but it differs from every time code that was built or parsed,
    /// including the one at the origin.
    static TimeCode const& Empty() noexcept;

    /// The nominal integer rate, in samples per second; its denominator is 1.
    VideoRate const& Rate() const noexcept { return rate_; }
    /// Samples since 1900-01-01 00:00:00.
    std::int64_t Sample() const noexcept { return sample_; }
    /// Whether drop-frame counting (SMPTE ST 12-1) is used; only with rate 30 or 60.
    bool DropFrame() const noexcept { return dropFrame_; }
    /// Whether the value has a real date. An undated time code is on 1970-01-01.
    bool Dated() const noexcept { return dated_; }

    /// Sets the sample count from a date and a time of day, with the rate and counting of this time code, which is then
    /// not empty. Nothing is checked: a year before 1900 counts as 1900 (but keeps its own month lengths), a month
    /// outside 1 to 12 has no days, and a count that exceeds 64 bits wraps.
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
    // Part of equality: without it, "no time code" would equal a clip's default time code, which has the same fields.
    bool empty_ = true;
};

static_assert(std::is_trivially_copyable_v<TimeCode>);

} // namespace Talvo::TimePoints
