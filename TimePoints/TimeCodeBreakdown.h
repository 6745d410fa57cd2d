#pragma once

// Internal, never installed.

#include "TimePoints/TimeCode.h"

#include <cstdint>

namespace Talvo::TimePoints
{

/// The date and clock fields of a time code. Divisions truncate toward zero, so a negative count, which only a negative
/// frame or a wrapped count has, breaks down into negative pieces. All pieces are 0 if the rate is not positive.
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
