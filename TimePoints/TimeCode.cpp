#include "TimePoints/TimeCode.h"

#include "TimePoints/SampleCounting.h"

namespace Talvo::TimePoints
{

TimeCode const& TimeCode::Empty() noexcept
{
    static constexpr TimeCode empty;
    return empty;
}

void TimeCode::DateTimeToSample(int year, int month, int day, int hour, int minute, int second, int sample) noexcept
{
    sample_ = SamplesSinceOrigin(rate_.numerator, dropFrame_, DaysSinceOrigin(year, month, day), hour, minute, second,
                                 sample);
    empty_ = false;
}

} // namespace Talvo::TimePoints
