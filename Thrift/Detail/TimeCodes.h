#pragma once

#include "Thrift/Detail/Reading.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimeCodeText.h"
#include "TimePoints/TimePoint.h"

#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// Out: `WriteTimeCode(timeCode, text)` writes straight into the wire's string. In, where a bad text has to be noticed:
// `ReadTimeCode(text)` gives nothing for it.
using TimePoints::ReadTimeCode;
using TimePoints::WriteTimeCode;

/// Unguarded in: a bad text is a BadValue, which ends the process in `To`.
inline TimePoints::TimeCode ParseTimeCode(char const* const field, std::string const& text)
{
    return OrBadValue(field, [&] { return TimePoints::TalvoTimeCodeParser().Parse(text); });
}

/// Guarded in: a bad text is skipped, and the destination keeps its value.
inline void AssignGuarded(TimePoints::TimeCode& destination, std::string const& text) noexcept
{
    if (auto const timeCode = ReadTimeCode(text)) destination = *timeCode;
}

/// Empty time codes and time points stay off the wire in optional fields.
inline bool IsPresent(TimePoints::TimeCode const& timeCode) noexcept
{
    return timeCode != TimePoints::TimeCode();
}

inline bool IsPresent(TimePoints::TimePoint const& timePoint) noexcept
{
    return timePoint != TimePoints::TimePoint::Empty();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
