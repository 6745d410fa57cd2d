#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>

namespace Talvo::Tools
{

/// How the tool prints.
struct Style
{
    bool json = false;
    bool colour = false;
};

/// Colours of a terminal, by their numbers in its escape sequences.
enum class Colour
{
    None = 0,
    Bold = 1,
    Red = 31,
    Green = 32,
    Yellow = 33,
    Cyan = 36
};

/// Whether `mode`, which is "auto", "always" or "never", means colour: "auto" does where standard output is a terminal
/// and the environment has no NO_COLOR, or an empty one.
bool HasColour(std::string_view mode);

/// `text`, coloured where `style` has colour.
std::string Painted(std::string const& text, Colour colour, Style const& style);

/// A table whose columns are as wide as their widest cell, up to a width that leaves room for the others: a longer cell
/// moves the rest of its line. Measure all lines first: none is kept.
class Table
{
public:
    using Cells = std::array<std::string, 4>;

    explicit Table(Style const& style)
        : style_(style)
    {
    }

    void Measure(Cells const& cells);
    void Print(Cells const& cells, Colour colour) const;

private:
    Style style_;
    std::array<std::size_t, std::tuple_size_v<Cells>> widths_{};
};

} // namespace Talvo::Tools
