#pragma once

#include <bit>
#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
{

/// Converts a number between the byte order of this machine and big-endian order. Boost.Endian does the same, but in a
/// unit that reads or writes many records its functions were not inlined, which took half of the time.
template<typename TNumber>
[[gnu::always_inline]] constexpr TNumber BigEndian(TNumber const number)
{
    if constexpr (std::endian::native == std::endian::big || sizeof(number) == 1)
        return number;
    else if constexpr (sizeof(number) == 2)
        return static_cast<TNumber>(__builtin_bswap16(static_cast<std::uint16_t>(number)));
    else if constexpr (sizeof(number) == 4)
        return static_cast<TNumber>(__builtin_bswap32(static_cast<std::uint32_t>(number)));
    else
        return static_cast<TNumber>(__builtin_bswap64(static_cast<std::uint64_t>(number)));
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
