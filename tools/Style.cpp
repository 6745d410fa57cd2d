#include "tools/Style.h"

#include <algorithm>
#include <cstddef>
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

void PrintTable(std::vector<Row> const& rows, Style const& style)
{
    static constexpr std::size_t MaxWidth = 40;
    std::array<std::size_t, std::tuple_size_v<decltype(Row::cells)>> widths{};
    for (auto const& row : rows)
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] = std::clamp(row.cells[column].size(), widths[column], MaxWidth);

    for (auto const& row : rows)
    {
        std::string line;
        for (std::size_t column = 0; column < widths.size(); ++column)
        {
            auto const& cell = row.cells[column];
            line += cell;
            if (column + 1 < widths.size()) line.append(std::max(widths[column], cell.size()) - cell.size() + 2, ' ');
        }
        std::cout << Painted(line, row.colour, style) << '\n';
    }
}

} // namespace Talvo::Tools
