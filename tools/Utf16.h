#pragma once

#include <iosfwd>
#include <string_view>

namespace Talvo::Tools
{

/// Prints the characters of UTF-16, the low byte of each code unit first, without zeros at its end. What is no character,
/// what a terminal might obey, and in a locale without UTF-8 all but ASCII, is printed as `\u202e` or `\u{e0001}`; a byte
/// that is left at the end as `\x41`.
void PrintUtf16(std::ostream& output, std::string_view bytes);

} // namespace Talvo::Tools
