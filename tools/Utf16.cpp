#include "tools/Utf16.h"

#include "tools/Text.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstddef>
#include <ostream>
#include <utility>

#include <langinfo.h>

namespace Talvo::Tools
{

namespace
{

/// Ranges of characters that are not printed: controls, what changes the direction of text or has no width, and what is no
/// character.
constexpr std::array<std::pair<char32_t, char32_t>, 13> Unprinted{{{0x0000, 0x001F},
                                                                   {0x007F, 0x009F},
                                                                   {0x00AD, 0x00AD},
                                                                   {0x061C, 0x061C},
                                                                   {0x180E, 0x180E},
                                                                   {0x200B, 0x200F},
                                                                   {0x2028, 0x202E},
                                                                   {0x2060, 0x206F},
                                                                   {0xD800, 0xF8FF},
                                                                   {0xFDD0, 0xFDEF},
                                                                   {0xFEFF, 0xFEFF},
                                                                   {0xFFF0, 0xFFFB},

                                                                   {0xE0000, 0x10FFFF}}};

bool IsUtf8Locale()
{
    static bool const isUtf8 = []
    {
        auto* const locale = newlocale(LC_CTYPE_MASK, "", nullptr);
        if (locale == nullptr) return false;
        bool const result = std::string_view(nl_langinfo_l(CODESET, locale)) == "UTF-8";
        freelocale(locale);
        return result;
    }();
    return isUtf8;
}

void PrintNumber(std::ostream& output, char32_t const character)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    bool const isLong = character > 0xFFFF;
    output << (isLong ? "\\u{" : "\\u");
    for (int shift = isLong ? 20 : 12; shift >= 0; shift -= 4)
        if (shift < 16 || character >> static_cast<unsigned>(shift) != 0)
            output << Digits[character >> static_cast<unsigned>(shift) & 0xFU];
    if (isLong) output << '}';
}

void PrintCharacter(std::ostream& output, char32_t const character)
{
    bool const isUnprinted = (character & 0xFFFEU) == 0xFFFEU ||
                             std::ranges::any_of(Unprinted, [&](auto const& range)
                                                 { return range.first <= character && character <= range.second; });
    bool const isAscii = character < 0x80;
    auto const put = [&](char32_t const byte) { output.put(static_cast<char>(byte)); };
    if (isUnprinted || (!isAscii && !IsUtf8Locale()))
        PrintNumber(output, character);
    else if (isAscii)
    {
        if (character == '"' || character == '\\') output << '\\';
        put(character);
    }
    else
    {
        if (character < 0x800)
            put(0xC0U | character >> 6U);
        else if (character < 0x10000)
        {
            put(0xE0U | character >> 12U);
            put(0x80U | (character >> 6U & 0x3FU));
        }
        else
        {
            put(0xF0U | character >> 18U);
            put(0x80U | (character >> 12U & 0x3FU));
            put(0x80U | (character >> 6U & 0x3FU));
        }
        put(0x80U | (character & 0x3FU));
    }
}

} // namespace

void PrintUtf16(std::ostream& output, std::string_view const bytes)
{
    auto const unit = [&](std::size_t const index)
    {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[2 * index]) |
                                     static_cast<unsigned char>(bytes[2 * index + 1]) << 8);
    };
    bool const isOdd = bytes.size() % 2 != 0;
    auto count = bytes.size() / 2;
    while (!isOdd && count > 0 && unit(count - 1) == 0) --count;
    for (std::size_t i = 0; i < count; ++i)
    {
        bool const isPair = i + 1 < count && unit(i) >> 10U == 0xD800U >> 10U && unit(i + 1) >> 10U == 0xDC00U >> 10U;
        if (isPair)
        {
            PrintCharacter(output, 0x10000U + ((unit(i) & 0x3FFU) << 10U) + (unit(i + 1) & 0x3FFU));
            ++i;
        }
        else
            PrintCharacter(output, unit(i));
    }
    if (isOdd) output << "\\x" << Hex(bytes.substr(bytes.size() - 1));
}

} // namespace Talvo::Tools
