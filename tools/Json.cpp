#include "tools/Json.h"

#include <cstddef>
#include <iostream>
#include <string>
#include <type_traits>
#include <variant>

namespace Talvo::Tools
{

void PrintJson(std::ostream& output, std::string_view const bytes)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    static constexpr std::string_view ShortlyEscaped = "\b\t\n\f\r\"\\";
    static constexpr std::size_t MaxPieceSize = 4096;
    static constexpr std::string_view ShortForms = "btnfr\"\\";

    std::string piece = "\"";
    for (char const byte : bytes)
    {
        auto const character = static_cast<unsigned char>(byte);
        if (auto const found = ShortlyEscaped.find(byte); found != std::string_view::npos)
            piece += {'\\', ShortForms[found]};
        else if (character >= 0x20U && character < 0x7FU)
            piece += byte;
        else
            piece += {'\\', 'u', '0', '0', Digits[character >> 4U], Digits[character & 0xFU]};
        if (piece.size() < MaxPieceSize) continue;
        output << piece;
        piece.clear();
    }
    output << piece << '"';
}

void PrintJsonValue(std::ostream& output, std::optional<Records::Value> const& value)
{
    if (!value)
    {
        output << "null";
        return;
    }
    std::visit(
        [&]<typename T>(T const& held)
        {
            using Records::Empty;
            if constexpr (std::is_same_v<T, bool>)
                output << (held ? "true" : "false");
            else if constexpr (std::is_same_v<T, Records::WireText>)
                PrintJson(output, held.bytes);
            else if constexpr (std::is_same_v<T, Records::Enumerator>)
                output << held.number;
            else if constexpr (std::is_same_v<T, Empty>)
                output << (held == Empty::List || held == Empty::Set ? "[]" : "{}");
            else
                output << held;
        },
        *value);
}

void JsonArray::Next()
{
    std::cout << (isEmpty_ ? "[\n" : ",\n");
    isEmpty_ = false;
}

void JsonArray::End() const
{
    std::cout << (isEmpty_ ? "[]" : "\n]");
}

} // namespace Talvo::Tools
