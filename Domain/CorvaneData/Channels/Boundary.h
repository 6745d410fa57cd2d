#pragma once

#include "TimePoints/TimePoint.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Channels
{

/// The start or end of a load: a time point (absolute), or a number of fields from a reference (relative). A new
/// boundary is absolute at TimePoint::Empty().
class Boundary
{
public:
    /// The reference of a relative boundary. The numbers on the wire are higher by one.
    enum class RelativeTo : std::int32_t
    {
        RelativeToCorrespondingClipBoundary = 0,
        RelativeToOppositeClipBoundary = 1,
        RelativeToOppositeLoadBoundary = 2
    };

    /// Builds an absolute boundary. Accepts any time point.
    static Boundary AbsoluteBoundary(TimePoints::TimePoint const& timepoint) noexcept;

    /// Builds a relative boundary. Accepts any reference and any number of fields.
    static Boundary RelativeBoundary(RelativeTo relativeTo, unsigned int fieldCount) noexcept;

    /// Whether the boundary is absolute; otherwise it is relative.
    bool IsAbsolute() const noexcept { return !isRelative_; }

    /// The time point of an absolute boundary; TimePoint::Empty() for a relative one.
    TimePoints::TimePoint const& Timepoint() const noexcept { return timepoint_; }

    /// The reference of a relative boundary; the number 0 for an absolute one.
    RelativeTo GetRelativeTo() const noexcept { return relativeTo_; }

    /// The number of fields of a relative boundary; 0 for an absolute one.
    unsigned int FieldCount() const noexcept { return fieldCount_; }

    bool operator==(Boundary const&) const = default;

private:
    bool isRelative_ = false;
    RelativeTo relativeTo_ = RelativeTo::RelativeToCorrespondingClipBoundary;
    TimePoints::TimePoint timepoint_;
    std::uint32_t fieldCount_ = 0;
};

} // namespace Talvo::Corvane::Data::Channels
