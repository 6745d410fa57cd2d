#pragma once

#include <array>
#include <cstddef>

namespace Talvo::Corvane::Data
{

/// Text slot of N payload bytes, as clips and sequences hold their texts.
///
/// The payload is opaque: UTF-16 code units if `isUtf16`, single-byte text otherwise. It is never converted between the
/// two and has no terminator of its own: a text may fill all N bytes. A new slot holds blanks; a text set from the wire
/// is padded with zeros. Both are valid, and slots are equal only if every byte is.
template<std::size_t N>
struct FixedText
{
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
