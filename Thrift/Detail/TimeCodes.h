#pragma once

#include "Thrift/Detail/Reading.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimeCodeText.h"
#include "TimePoints/TimePoint.h"

#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// To the wire: `WriteTimeCode(timeCode, text)` writes directly into the wire's string. From the wire, where an invalid
// text has to be detected: `ReadTimeCode(text)` returns nothing for it.
using TimePoints::ReadTimeCode;
using TimePoints::WriteTimeCode;

/// Reads a time code unguarded: an invalid text is a BadValue, which ends the process in `To`.
inline TimePoints::TimeCode ParseTimeCode(char const* const field, std::string const& text)
{
    return OrBadValue(field, [&] { return TimePoints::TalvoTimeCodeParser().Parse(text); });
}

/// Reads a time code guarded: an invalid text is skipped, and the destination keeps its value.
inline void AssignGuarded(TimePoints::TimeCode& destination, std::string const& text) noexcept
{
    if (auto const timeCode = ReadTimeCode(text)) destination = *timeCode;
}

/// Whether a time code is not empty. Optional fields do not carry empty time codes and time points.
inline bool IsPresent(TimePoints::TimeCode const& timeCode) noexcept
{
    return timeCode != TimePoints::TimeCode();
}

inline bool IsPresent(TimePoints::TimePoint const& timePoint) noexcept
{
    return timePoint != TimePoints::TimePoint::Empty();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
