#pragma once

// Internal, never installed: the text form of a time code without allocation and without exceptions.

#include "TimePoints/TimeCode.h"

#include <optional>
#include <string>
#include <string_view>

namespace Talvo::TimePoints
{

// These two expressions (ECMAScript) define the language of the text form. Matching is done by hand, because std::regex
// recurses once a character, so that a long text overruns the stack; the tests hold the scanner against them. Despite
// its name, the first accepts both separators.
inline constexpr char const* regexDatedtcNoDrop =
    R"(^([1-9]\d\d\d)-([0-1]\d)-([0-3]\d)T([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)";
inline constexpr char const* regexTC = R"(^([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)";

/// Replaces `text` by the text of a time code, as TalvoTimeCodeFormatter writes it. A `text` that has the room, as a used
/// one has, costs no allocation.
void WriteTimeCode(TimeCode const& timeCode, std::string& text);

/// The time code of `text`, as TalvoTimeCodeParser reads it, or nothing for every bad text, a rate too large for an
/// `int` included.
std::optional<TimeCode> ReadTimeCode(std::string_view text) noexcept;

} // namespace Talvo::TimePoints
