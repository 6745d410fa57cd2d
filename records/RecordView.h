#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Talvo::Records
{

struct Part;

/// A value of a record as text, with its flags: a number, a text or, with parts, a record or a container.
struct View
{
    enum class Kind
    {
        Number,
        Enumeration,
        Text,
        Record,
        Container
    };

    Kind kind;
    std::string text; ///< Of a number or text; of a record its name, of a container the number of its elements.
    std::vector<Part> parts;

    bool operator==(View const& other) const = default;
};

/// A field of a record, or an element, key or value of a container.
struct Part
{
    std::string label; ///< Such as `7 videoStandard`, `[0]`, `{0}` of a set, `key [0]`.
    bool isSet;        ///< The flag; of a required field and of an element true.
    View view;

    bool operator==(Part const& other) const = default;
};

/// Printable ASCII: `\x1f` for every other byte, `\"` and `\\` for those two.
std::string Escaped(std::string_view bytes);

/// A part a line, indented under the whole: `7 videoStandard = 1` with its flag set, `7 videoStandard ? 1` without.
std::vector<std::string> Lines(View const& view);
std::string Text(View const& view);

} // namespace Talvo::Records
