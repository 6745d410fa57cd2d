#include "tools/Style.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include <unistd.h>

namespace Talvo::Tools
{

bool HasColour(std::string_view const mode)
{
    if (mode != "auto") return mode == "always";
    auto const* const noColour = std::getenv("NO_COLOR");
    return (noColour == nullptr || *noColour == '\0') && isatty(STDOUT_FILENO) != 0;
}

std::string Painted(std::string const& text, Colour const colour, Style const& style)
{
    if (!style.colour || colour == Colour::None) return text;
    return "\x1b[" + std::to_string(static_cast<int>(colour)) + 'm' + text + "\x1b[0m";
}

void Table::Measure(Cells const& cells)
{
    static constexpr std::size_t MaxWidth = 40;
    for (std::size_t column = 0; column < cells.size(); ++column)
        widths_[column] = std::clamp(cells[column].size(), widths_[column], MaxWidth);
}

void Table::Print(Cells const& cells, Colour const colour) const
{
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column)
    {
        auto const& cell = cells[column];
        line += cell;
        if (column + 1 < cells.size()) line.append(std::max(widths_[column], cell.size()) - cell.size() + 2, ' ');
    }
    std::cout << Painted(line, colour, style_) << '\n';
}

} // namespace Talvo::Tools
