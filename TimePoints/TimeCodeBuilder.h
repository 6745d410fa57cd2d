#pragma once

#include "TimePoints/TimeCode.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Talvo::TimePoints
{

/// Builds a TimeCode from calendar and clock fields and rejects invalid ones.
///
///     TimeCodeBuilder const fields{
///         .year = 2000, .month = 1, .day = 1, .minute = 1, .sample = 2, .numerator = 30, .dropFrame = true};
///     auto const timeCode = fields.Build(); // 2000-01-01T00:01:00;02@30
struct TimeCodeBuilder
{
    /// Calendar year, 1900 to 2261.
    int year = 1900;
    /// 1 to 12.
    int month = 1;
    /// 1 to the length of the month. An undated time code ignores the date, but the date must still be valid.
    int day = 1;
    /// 0 to 23.
    int hour = 0;
    /// 0 to 59.
    int minute = 0;
    /// 0 to 59.
    int second = 0;
    /// The frame within the second, below `numerator`. A negative frame is accepted.
    int sample = 0;
    /// The nominal rate, in samples per second.
    std::int64_t numerator = 50;
    /// 1.
    std::int64_t denominator = 1;
    /// Drop-frame counting, for rates 30 and 60 only.
    bool dropFrame = false;
    /// False for a time code without a date, which is then on 1970-01-01.
    bool dated = true;

    /// Returns true, or throws std::out_of_range for the first of these checks that fails, in this order:
    ///
    /// | Field | Text, as in |
    /// |---|---|
    /// | `year` | `year 1899 must be between 1900 and 2261` |
    /// | `month` | `month 13 must be between 1 and 12` |
    /// | `day` | `day 31is negative or greater than 30 in month 4` |
    /// | `hour` | `hour 24 must be between 0 and 23` |
    /// | `minute` | `minute 60 must be between 0 and 59` |
    /// | `second` | `second 60 must be between 0 and 59` |
    /// | `denominator` | `Denominator 1001 must be between equals to 1` |
    /// | `sample` | `Sample 25 is greater than numerator ratio 25` |
    /// | drop-frame: a dropped number | `In dropped TimeCode, this value doesn't exist 1:0;0` (minute, second, frame) |
    /// | drop-frame: the rate | `Rate 25 / 1 is not compatible with drop TC format` |
    ///
    /// The dropped numbers are the first two frames (rate 30) or four frames (any other rate) of each minute that is
    /// not a multiple of ten.
    bool IsValidToBuildWithexception() const;

    /// Returns the time code, or throws as IsValidToBuildWithexception() does. A sample count that exceeds 64 bits
    /// wraps.
    TimeCode Build() const;

private:
    friend class TalvoTimeCodeParser;
    friend std::optional<TimeCode> ReadTimeCode(std::string_view text) noexcept;

    /// The faults, in the order of the checks.
    enum class Fault
    {
        None,
        Year,
        Month,
        Day,
        Hour,
        Minute,
        Second,
        Denominator,
        Sample,
        DroppedFrame,
        DropRate
    };

    Fault FirstFault() const noexcept;
    TimeCode BuildUnchecked() const noexcept;
};

} // namespace Talvo::TimePoints
