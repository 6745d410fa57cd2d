#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace Talvo::Corvane::Data
{

/// Text slot of N payload bytes, used for the texts of clips and sequences.
///
/// The payload is opaque: UTF-16 code units if `isUtf16`, single-byte text otherwise. It is never converted between the
/// two and has no terminator: a text may fill all N bytes. A new slot holds blanks; a text that is set, here or from
/// the wire, is padded with zeros. Both are valid, and slots are equal only if all bytes are equal.
template<std::size_t N>
struct FixedText
{
    /// Replaces the slot, including `isUtf16`, with single-byte text. A longer text is cut after N bytes, a shorter one
    /// is padded with zeros.
    /// @return whether the whole text fitted
    constexpr bool Set(std::string_view text) noexcept
    {
        auto const count = std::min(text.size(), N);
        std::fill(std::copy_n(text.data(), count, payload.begin()), payload.end(), '\0');
        isUtf16 = false;
        end = {};
        return count == text.size();
    }

    /// Replaces the slot, including `isUtf16`, with UTF-16 text, the low byte of each code unit first. A longer text is
    /// cut after N / 2 code units, or one earlier if that would leave the first half of a surrogate pair; a shorter one
    /// is padded with zeros.
    /// @return whether the whole text fitted
    constexpr bool Set(std::u16string_view text) noexcept
    {
        auto count = std::min(text.size(), N / 2);
        bool const isCut = count != 0 && count != text.size();
        if (isCut && text[count - 1] >= 0xD800 && text[count - 1] <= 0xDBFF) --count;
        auto next = payload.begin();
        for (char16_t const unit : text.substr(0, count))
        {
            *next++ = static_cast<char>(unit & 0xFF);
            *next++ = static_cast<char>(unit >> 8);
        }
        std::fill(next, payload.end(), '\0');
        isUtf16 = true;
        end = {};
        return count == text.size();
    }

    bool isUtf16 = false;
    std::array<char, N> payload = Blanks();
    std::array<char, 2> end{}; ///< always zero

    bool operator==(FixedText const&) const = default;

private:
    static constexpr std::array<char, N> Blanks() noexcept
    {
        std::array<char, N> blanks{};
        blanks.fill(' ');
        return blanks;
    }
};

} // namespace Talvo::Corvane::Data
