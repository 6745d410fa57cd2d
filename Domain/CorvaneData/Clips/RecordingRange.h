#pragma once

#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

namespace Talvo::Corvane::Data::Clips
{

/// A stretch that a train has recorded. A new one is empty in all four fields.
struct RecordingRange
{
    TimePoints::TimePoint rangeInTimePoint;
    TimePoints::TimePoint rangeOutTimePoint;
    TimePoints::TimeCode rangeInTimecode;
    TimePoints::TimeCode rangeOutTimecode;

    bool operator==(RecordingRange const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips
