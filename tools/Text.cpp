#include "tools/Text.h"

#include <cstddef>
#include <iostream>
#include <type_traits>
#include <variant>

namespace Talvo::Tools
{

namespace
{

using Records::Empty;
using Records::Key;

std::string KeyText(Value const& key)
{
    static constexpr std::size_t MaxSize = 64;
    auto const* const text = std::get_if<std::string_view>(&key);
    if (text == nullptr || text->size() <= MaxSize) return ValueText(key);
    return '"' + Escaped(text->substr(0, MaxSize)) + "...\" (" + std::to_string(text->size()) + " bytes)";
}

} // namespace

std::string PathText(std::span<Step const> const path)
{
    std::string text;
    for (auto const& step : path)
    {
        if (auto const* const name = std::get_if<char const*>(&step))
            (text += text.empty() ? "" : ".") += *name;
        else if (auto const* const index = std::get_if<std::size_t>(&step))
            text += '[' + std::to_string(*index) + ']';
        else
            text += '[' + KeyText(std::get<Key>(step).value) + ']';
    }
    return text;
}

std::string ValueText(Value const& value)
{
    return std::visit(
        []<typename T>(T const& held) -> std::string
        {
            if constexpr (std::is_same_v<T, bool>)
                return held ? "true" : "false";
            else if constexpr (std::is_same_v<T, std::string_view>)
                return '"' + Escaped(held) + '"';
            else if constexpr (std::is_same_v<T, Empty>)
                return held == Empty::Record ? "(no fields)" : held == Empty::List ? "[]" : "{}";
            else
                return std::to_string(held);
        },
        value);
}

void PrintValue(std::ostream& output, Value const& value)
{
    static constexpr std::size_t PieceSize = 4096;
    auto const* const text = std::get_if<std::string_view>(&value);
    if (text == nullptr)
    {
        output << ValueText(value);
        return;
    }
    output << '"';
    for (std::size_t start = 0; start < text->size(); start += PieceSize)
        output << Escaped(text->substr(start, PieceSize));
    output << '"';
}

void Report(std::string_view const message)
{
    std::cerr << "talvo-wire: " << Escaped(message) << '\n';
}

} // namespace Talvo::Tools
