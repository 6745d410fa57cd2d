#pragma once

#include "records/Values.h"

#include <iosfwd>
#include <optional>
#include <string_view>

namespace Talvo::Tools
{

/// Prints a string of JSON in ASCII. Texts on the wire are bytes of any kind, and JSON has characters only: each byte
/// becomes the character of its number, U+0000 to U+00FF, so that encoding a string as Latin-1 gives the bytes back.
void PrintJson(std::ostream& output, std::string_view bytes);

/// Prints numbers and booleans as such, `[]` and `{}` for empty ones, null for none.
void PrintJsonValue(std::ostream& output, std::optional<Records::Value> const& value);

/// Prints an array on standard output, an element a line.
class JsonArray
{
public:
    /// An element follows.
    void Next();
    void End() const;

private:
    bool isEmpty_ = true;
};

} // namespace Talvo::Tools
