#pragma once

#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

namespace Talvo::Corvane::Data::Clips
{

/// A range that a train has recorded. In a new one all four fields are empty.
struct RecordingRange
{
    TimePoints::TimePoint rangeInTimePoint;
    TimePoints::TimePoint rangeOutTimePoint;
    TimePoints::TimeCode rangeInTimecode;
    TimePoints::TimeCode rangeOutTimecode;

    bool operator==(RecordingRange const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips
