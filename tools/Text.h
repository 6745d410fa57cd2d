#pragma once

#include "records/RecordView.h"
#include "records/Values.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Talvo::Tools
{

using Records::Escaped;
using Records::Place;
using Records::Step;
using Records::Value;

/// Two digits a byte.
std::string Hex(std::string_view bytes);

/// The bytes of an escaped text; nothing where it is none.
std::optional<std::string> Unescaped(std::string_view text);

/// A key that is a text of more bytes ends there in a path.
inline constexpr std::size_t MaxKeySize = 64;

/// The key of a map's entry in a path.
std::string KeyText(Value const& key);

/// A path such as `clips[3].clip.name`. The entries of a map stand under their keys, `players["A"].speed`. A key that is
/// a text of more than 64 bytes ends there, `players["A..." (70 bytes)].speed`: every value of its entry repeats it.
std::string PathText(std::span<Step const> path);

/// A value as text: texts are escaped and stand in quotes. Beside numbers of enumerations stand their names, beside UTF-16
/// its characters, and beside identifiers of sixteen bytes these in hex.
std::string ValueText(Value const& value);

/// The same, printed piece by piece: the text of a value may be large.
void PrintValue(std::ostream& output, Value const& value);

/// Prints a line on standard error, escaped: it may repeat names of files and what else others have chosen.
void Report(std::string_view message);

} // namespace Talvo::Tools
