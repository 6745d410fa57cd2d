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

    /// Returns the time code, or throws if the text is invalid.
    virtual TimeCode Parse(std::string const& text) const = 0;
    /// Whether Parse() would succeed.
    virtual bool IsStringFormatValid(std::string const& text) const = 0;
    /// Returns true and the time code, or false and TimeCode::Empty().
    virtual std::pair<bool, TimeCode> TryParse(std::string const& text) const = 0;
};

} // namespace Talvo::TimePoints
