#include "Domain/CorvaneData/Channels/Boundary.h"

namespace Talvo::Corvane::Data::Channels
{

Boundary Boundary::AbsoluteBoundary(TimePoints::TimePoint const& timepoint) noexcept
{
    Boundary boundary;
    boundary.timepoint_ = timepoint;
    return boundary;
}

Boundary Boundary::RelativeBoundary(RelativeTo const relativeTo, unsigned int const fieldCount) noexcept
{
    Boundary boundary;
    boundary.isRelative_ = true;
    boundary.relativeTo_ = relativeTo;
    boundary.fieldCount_ = fieldCount;
    return boundary;
}

} // namespace Talvo::Corvane::Data::Channels
