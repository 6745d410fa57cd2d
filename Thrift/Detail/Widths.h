#pragma once

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// A 32-bit domain number as the 64-bit wire number: zero-extended, never negative.
constexpr std::int64_t Widened(std::uint32_t const value) noexcept
{
    return value;
}

/// A 64-bit wire number as the 32-bit domain number: the high word is lost.
constexpr std::uint32_t LowWord(std::int64_t const value) noexcept
{
    return static_cast<std::uint32_t>(value);
}

/// Whether an enumeration holds anything but the number 0, which stays off the wire in optional fields.
template<typename Enumeration>
constexpr bool IsNonZero(Enumeration const value) noexcept
{
    return value != Enumeration{};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
