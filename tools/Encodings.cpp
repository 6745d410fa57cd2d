#include "tools/Encodings.h"

#include "tools/Failure.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace Talvo::Tools
{

namespace
{

constexpr std::array<std::pair<std::string_view, Encoding>, 3> Encodings{
    {{"bytes", Encoding::Bytes}, {"hex", Encoding::Hex}, {"base64", Encoding::Base64}}};

constexpr std::string_view HexDigits = "0123456789abcdef";
constexpr std::string_view Base64Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

bool IsBlank(char const character)
{
    return std::string_view(" \t\r\n").find(character) != std::string_view::npos;
}

[[noreturn]] void Refuse(std::string const& kind, std::string const& reason)
{
    throw Failure("holds no " + kind + " text: " + reason);
}

/// The value of a digit, whose letters may be of either case where the digits have one case.
std::uint32_t DigitOf(char const character, std::string_view const digits)
{
    bool const isUpper = digits == HexDigits && 'A' <= character && character <= 'F';
    return static_cast<std::uint32_t>(digits.find(isUpper ? static_cast<char>(character + ('a' - 'A')) : character));
}

/// Decodes in place: digits of `bits` bits each.
std::string DecodeDigits(std::string text, std::string const& kind, std::string_view const digits, unsigned const bits)
{
    std::uint32_t buffer = 0;
    unsigned count = 0;
    std::size_t size = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (IsBlank(text[i])) continue;
        auto const digit = DigitOf(text[i], digits);
        if (digit >= digits.size()) Refuse(kind, "its byte " + std::to_string(i) + " is not a digit");
        buffer = buffer << bits | digit;
        count += bits;
        if (count < 8) continue;
        count -= 8;
        text[size++] = static_cast<char>(buffer >> count & 0xFFU);
    }
    if (count >= bits || (buffer & ((1U << count) - 1)) != 0) Refuse(kind, "it ends within a byte");
    text.resize(size);
    return text;
}

/// Base64 has up to two '=' at its end, which fill it up to a multiple of four digits.
std::string WithoutPadding(std::string text)
{
    auto const digits = text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsBlank));
    if (digits % 4 != 0) Refuse("base64", "the number of its digits is not a multiple of four");
    std::size_t padding = 0;
    while (!text.empty() && (IsBlank(text.back()) || (text.back() == '=' && padding++ < 2))) text.pop_back();
    return text;
}

} // namespace

Encoding ParseEncoding(std::string_view const name)
{
    for (auto const& [known, encoding] : Encodings)
        if (name == known) return encoding;
    throw Failure("there is no encoding '" + std::string(name) + "'; there are bytes, hex and base64");
}

std::string DecodeText(std::string text, Encoding const encoding)
{
    switch (encoding)
    {
    case Encoding::Hex:
        return DecodeDigits(std::move(text), "hex", HexDigits, 4);
    case Encoding::Base64:
        return DecodeDigits(WithoutPadding(std::move(text)), "base64", Base64Digits, 6);
    default:
        return text;
    }
}

std::string_view TextKind(std::string_view const bytes)
{
    std::size_t blanks = 0;
    std::size_t hex = 0;
    std::size_t base64 = 0;
    for (char const byte : bytes)
    {
        if (!IsBlank(byte) && (byte < ' ' || byte > '~')) return {};
        blanks += IsBlank(byte) ? 1 : 0;
        hex += DigitOf(byte, HexDigits) < HexDigits.size() ? 1 : 0;
        base64 += DigitOf(byte, Base64Digits) < Base64Digits.size() || byte == '=' ? 1 : 0;
    }
    auto const size = bytes.size() - blanks;
    if (size == 0) return {};
    if (size == hex && size % 2 == 0) return "hex text; --encoding hex reads that";
    if (size == base64 && size % 4 == 0) return "base64 text; --encoding base64 reads that";
    auto const first = bytes[std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size() - 1)];
    return first == '{' || first == '[' ? "JSON" : "text";
}

} // namespace Talvo::Tools
