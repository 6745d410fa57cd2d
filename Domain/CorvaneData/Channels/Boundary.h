#pragma once

#include "TimePoints/TimePoint.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Channels
{

/// Where a load starts or ends: at a time point (absolute), or a number of fields away from a reference (relative).
/// A new one is absolute at TimePoint::Empty().
class Boundary
{
public:
    /// The reference of a relative boundary. The wire's numbers are higher by one.
    enum class RelativeTo : std::int32_t
    {
        RelativeToCorrespondingClipBoundary = 0,
        RelativeToOppositeClipBoundary = 1,
        RelativeToOppositeLoadBoundary = 2
    };

    /// Takes any time point.
    static Boundary AbsoluteBoundary(TimePoints::TimePoint const& timepoint) noexcept;

    /// Takes any reference and any count of fields.
    static Boundary RelativeBoundary(RelativeTo relativeTo, unsigned int fieldCount) noexcept;

    /// Whether it is a time point; else it is relative.
    bool IsAbsolute() const noexcept { return !isRelative_; }

    /// The time point of an absolute boundary; TimePoint::Empty() of a relative one.
    TimePoints::TimePoint const& Timepoint() const noexcept { return timepoint_; }

    /// The reference of a relative boundary; the number 0 of an absolute one.
    RelativeTo GetRelativeTo() const noexcept { return relativeTo_; }

    /// The fields of a relative boundary; 0 of an absolute one.
    unsigned int FieldCount() const noexcept { return fieldCount_; }

    bool operator==(Boundary const&) const = default;

private:
    bool isRelative_ = false;
    RelativeTo relativeTo_ = RelativeTo::RelativeToCorrespondingClipBoundary;
    TimePoints::TimePoint timepoint_;
    std::uint32_t fieldCount_ = 0;
};

} // namespace Talvo::Corvane::Data::Channels
