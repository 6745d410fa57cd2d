#pragma once

#include "Domain/CorvaneData/FixedText.h"
#include "generated/Clip_types.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// The text of a bounded array: up to its first zero, or all of it.
template<std::size_t Size>
std::string_view UntilNul(std::array<char, Size> const& text) noexcept
{
    return {text.data(), static_cast<std::size_t>(std::find(text.begin(), text.end(), '\0') - text.begin())};
}

/// Replaces a bounded text, which always ends with a zero: a longer one is cut, the rest is filled with zeros.
template<std::size_t Size>
void AssignBounded(std::array<char, Size>& destination, std::string const& source) noexcept
{
    destination = {};
    std::copy_n(source.data(), std::min(source.size(), Size - 1), destination.data());
}

/// Sends a text slot: its whole payload, blanks and zeros included, and the slot's own flag. Never transcoded.
template<std::size_t Size>
void SendSlot(Corvane::Data::FixedText<Size> const& source, Data::Clips::Generated::AsciiOrUtf16String& destination)
{
    destination.data.assign(source.payload.data(), Size);
    destination.isUtf16 = source.isUtf16;
    destination.__isset.data = true;
    destination.__isset.isUtf16 = true;
}

/// Replaces a text slot as a whole, whatever the inner flags say: a longer text is cut, even in the middle of a UTF-16
/// code unit, a shorter one is filled with zeros.
template<std::size_t Size>
void ReadSlot(Data::Clips::Generated::AsciiOrUtf16String const& source, Corvane::Data::FixedText<Size>& destination)
{
    destination.isUtf16 = source.isUtf16;
    destination.payload = {};
    destination.end = {};
    std::copy_n(source.data.data(), std::min(source.data.size(), Size), destination.payload.data());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
