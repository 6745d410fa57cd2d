#pragma once

// Internal, never installed: writes and reads the text form of time codes without exceptions.

#include "TimePoints/TimeCode.h"

#include <optional>
#include <string>
#include <string_view>

namespace Talvo::TimePoints
{

// These two expressions (ECMAScript) define the language of the text form. A hand-written scanner does the matching,
// because std::regex recurses once per character and overruns the stack on a long text; the tests compare the scanner
// with the expressions. Despite its name, the first one accepts both separators.
inline constexpr char const* regexDatedtcNoDrop =
    R"(^([1-9]\d\d\d)-([0-1]\d)-([0-3]\d)T([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)";
inline constexpr char const* regexTC = R"(^([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)";

/// Replaces `text` with the text of a time code, as TalvoTimeCodeFormatter writes it. Allocates nothing if `text` has
/// enough capacity, as a reused one has.
void WriteTimeCode(TimeCode const& timeCode, std::string& text);

/// Returns the time code of `text`, as TalvoTimeCodeParser reads it, or nothing for an invalid text, including one with
/// a rate too large for an `int`.
std::optional<TimeCode> ReadTimeCode(std::string_view text) noexcept;

} // namespace Talvo::TimePoints
