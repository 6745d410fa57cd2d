#pragma once

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Converts a 32-bit domain number to a 64-bit wire number: zero-extended, never negative.
constexpr std::int64_t Widened(std::uint32_t const value) noexcept
{
    return value;
}

/// Converts a 64-bit wire number to a 32-bit domain number: the high word is lost.
constexpr std::uint32_t LowWord(std::int64_t const value) noexcept
{
    return static_cast<std::uint32_t>(value);
}

/// Whether an enumeration is not 0. Optional fields do not carry the number 0.
template<typename Enumeration>
constexpr bool IsNonZero(Enumeration const value) noexcept
{
    return value != Enumeration{};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
