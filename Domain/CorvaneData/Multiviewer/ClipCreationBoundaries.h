#pragma once

#include "Domain/CorvaneData/Optional.h"
#include "TimePoints/TimePoint.h"

namespace Talvo::Corvane::Multiviewer
{

/// The in and out points for creating a clip. Each may be missing.
class ClipCreationBoundaries
{
public:
    /// The in point.
    Data::Optional<TimePoints::TimePoint> TimePointIn() const { return timePointIn_; }
    /// Sets the in point.
    void TimePointIn(TimePoints::TimePoint&& value) { timePointIn_ = value; }

    /// The out point.
    Data::Optional<TimePoints::TimePoint> TimePointOut() const { return timePointOut_; }
    /// Sets the out point.
    void TimePointOut(TimePoints::TimePoint&& value) { timePointOut_ = value; }

    bool operator==(ClipCreationBoundaries const&) const = default;

private:
    Data::Optional<TimePoints::TimePoint> timePointIn_;
    Data::Optional<TimePoints::TimePoint> timePointOut_;
};

} // namespace Talvo::Corvane::Multiviewer
