#include "tools/Suggestion.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Talvo::Tools
{

namespace
{

char LowerCase(char const letter)
{
    return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool SameLetter(char const left, char const right)
{
    return LowerCase(left) == LowerCase(right);
}

/// How many letters have to be put in, left out, replaced or exchanged with the next one.
std::size_t Distance(std::string_view const left, std::string_view const right)
{
    // Row by row: the distances of the first letters of `left` from those of `right`.
    std::vector<std::size_t> beforeLast;
    std::vector<std::size_t> last(right.size() + 1);
    for (std::size_t column = 0; column <= right.size(); ++column) last[column] = column;
    for (std::size_t row = 1; row <= left.size(); ++row)
    {
        std::vector<std::size_t> current(right.size() + 1, row);
        for (std::size_t column = 1; column <= right.size(); ++column)
        {
            bool const isSame = SameLetter(left[row - 1], right[column - 1]);
            current[column] =
                std::min({last[column] + 1, current[column - 1] + 1, last[column - 1] + (isSame ? 0 : 1)});
            if (row > 1 && column > 1 && SameLetter(left[row - 1], right[column - 2]) &&
                SameLetter(left[row - 2], right[column - 1]))
                current[column] = std::min(current[column], beforeLast[column - 2] + 1);
        }
        beforeLast = std::move(last);
        last = std::move(current);
    }
    return last.back();
}

} // namespace

bool EqualButForCase(std::string_view const left, std::string_view const right)
{
    return std::ranges::equal(left, right, SameLetter);
}

std::string Suggestion(std::string_view const word, std::span<std::string_view const> const names)
{
    static constexpr std::size_t LongestWord = 64;
    if (word.size() > LongestWord) return {};
    auto least = std::max<std::size_t>(1, word.size() / 3) + 1;
    std::string_view closest;
    for (auto const name : names)
        if (auto const distance = Distance(word, name); distance < least)
        {
            least = distance;
            closest = name;
        }
    return closest.empty() ? std::string() : "; did you mean '" + std::string(closest) + "'?";
}

} // namespace Talvo::Tools
