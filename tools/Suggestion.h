#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Talvo::Tools
{

/// Whether they differ in the case of ASCII letters at most.
bool EqualButForCase(std::string_view left, std::string_view right);

/// Of several names the one that somebody may have meant who wrote `word`, as "; did you mean 'Clip'?"; empty where none is
/// close.
std::string Suggestion(std::string_view word, std::span<std::string_view const> names);

} // namespace Talvo::Tools
