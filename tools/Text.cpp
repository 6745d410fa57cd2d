#include "tools/Text.h"

#include "tools/Progress.h"
#include "tools/Utf16.h"

#include <cstddef>
#include <iostream>
#include <sstream>
#include <type_traits>
#include <variant>

namespace Talvo::Tools
{

namespace
{

using Records::Empty;
using Records::Enumerator;
using Records::Key;
using Records::WireText;

void PrintText(std::ostream& output, WireText const& text)
{
    static constexpr std::size_t PieceSize = 4096;
    static constexpr std::size_t IdentifierSize = 16;
    output << '"';
    for (std::size_t start = 0; start < text.bytes.size(); start += PieceSize)
        output << Escaped(text.bytes.substr(start, PieceSize));
    output << '"';
    if (text.kind == WireText::Kind::Utf16)
    {
        output << " (UTF-16 \"";
        PrintUtf16(output, text.bytes);
        output << "\")";
    }
    else if (text.kind == WireText::Kind::Identifier && text.bytes.size() == IdentifierSize)
        output << " (" << Hex(text.bytes) << ')';
}

} // namespace

std::string Hex(std::string_view const bytes)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    for (char const byte : bytes)
    {
        auto const value = static_cast<unsigned char>(byte);
        text += {Digits[value >> 4U], Digits[value & 0xFU]};
    }
    return text;
}

std::optional<std::string> Unescaped(std::string_view const text)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '\\')
        {
            bytes += text[i];
            continue;
        }
        if (++i == text.size()) return std::nullopt;
        if (text[i] == '"' || text[i] == '\\')
        {
            bytes += text[i];
            continue;
        }
        if (text[i] != 'x' || text.size() - i < 3) return std::nullopt;
        auto const high = Digits.find(text[++i]);
        auto const low = Digits.find(text[++i]);
        if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
        bytes += static_cast<char>(high << 4U | low);
    }
    return bytes;
}

std::string KeyText(Value const& key)
{
    if (auto const* const enumerator = std::get_if<Enumerator>(&key)) return std::to_string(enumerator->number);
    auto const* const text = std::get_if<WireText>(&key);
    if (text == nullptr) return ValueText(key);
    auto const& bytes = text->bytes;
    auto const start = '"' + Escaped(bytes.substr(0, MaxKeySize));
    return bytes.size() <= MaxKeySize ? start + '"' : start + "...\" (" + std::to_string(bytes.size()) + " bytes)";
}

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
    std::ostringstream text;
    PrintValue(text, value);
    return text.str();
}

void PrintValue(std::ostream& output, Value const& value)
{
    std::visit(
        [&]<typename T>(T const& held)
        {
            if constexpr (std::is_same_v<T, bool>)
                output << (held ? "true" : "false");
            else if constexpr (std::is_same_v<T, Enumerator>)
            {
                output << held.number;
                if (held.name != nullptr) output << " (" << held.name << ')';
            }
            else if constexpr (std::is_same_v<T, WireText>)
                PrintText(output, held);
            else if constexpr (std::is_same_v<T, Empty>)
                output << (held == Empty::Record ? "(no fields)" : held == Empty::List ? "[]" : "{}");
            else
                output << held;
        },
        value);
}

void Report(std::string_view const message)
{
    ClearProgress();
    std::cerr << "talvo-wire: " << Escaped(message) << '\n';
}

} // namespace Talvo::Tools
