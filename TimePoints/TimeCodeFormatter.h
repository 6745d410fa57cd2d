#pragma once

#include "TimePoints/TimeCode.h"

#include <string>

namespace Talvo::TimePoints
{

/// Writes time codes as text.
class TimeCodeFormatter
{
public:
    virtual ~TimeCodeFormatter() = default;

    /// Returns the text of the time code.
    virtual std::string Format(TimeCode const& timeCode) const = 0;
};

} // namespace Talvo::TimePoints
