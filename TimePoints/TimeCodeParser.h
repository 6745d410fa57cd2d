#pragma once

#include "TimePoints/TimeCode.h"

#include <string>
#include <utility>

namespace Talvo::TimePoints
{

/// Reads time codes from text.
class TimeCodeParser
{
public:
    virtual ~TimeCodeParser() = default;

    /// The time code, or throws.
    virtual TimeCode Parse(std::string const& text) const = 0;
    /// Whether Parse() would succeed.
    virtual bool IsStringFormatValid(std::string const& text) const = 0;
    /// True and the time code, or false and TimeCode::Empty().
    virtual std::pair<bool, TimeCode> TryParse(std::string const& text) const = 0;
};

} // namespace Talvo::TimePoints
