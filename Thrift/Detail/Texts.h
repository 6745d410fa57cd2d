#pragma once

#include "Domain/CorvaneData/FixedText.h"
#include "Thrift/Detail/Strings.h"
#include "generated/Clip_types.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// The text of a bounded array: up to its first zero, or the whole array.
template<std::size_t Size>
std::string_view UntilNul(std::array<char, Size> const& text) noexcept
{
    return {text.data(), static_cast<std::size_t>(std::find(text.begin(), text.end(), '\0') - text.begin())};
}

/// Replaces the first `Size` characters of `destination`: a longer text is cut, a shorter one is filled with zeros.
template<std::size_t Size>
void FillFrom(std::string const& source, char* const destination) noexcept
{
    if (source.size() >= Size) // the usual case: a copy of constant length is cheap
        std::copy_n(source.data(), Size, destination);
    else
        std::fill(std::copy(source.begin(), source.end(), destination), destination + Size, '\0');
}

/// Replaces a bounded text, which always ends with a zero: a longer text is cut, a shorter one is filled with zeros.
template<std::size_t Size>
void AssignBounded(std::array<char, Size>& destination, std::string const& source) noexcept
{
    FillFrom<Size - 1>(source, destination.data());
    destination.back() = '\0';
}

/// Writes a text slot: its whole payload, including blanks and zeros, and the slot's own flag. The text is not
/// transcoded.
template<std::size_t Size>
void SendSlot(Corvane::Data::FixedText<Size> const& source, Data::Clips::Generated::AsciiOrUtf16String& destination)
{
    Assign<Size>(destination.data, source.payload.data());
    destination.isUtf16 = source.isUtf16;
    destination.__isset.data = true;
    destination.__isset.isUtf16 = true;
}

/// Replaces a whole text slot, regardless of the inner flags: a longer text is cut, even in the middle of a UTF-16 code
/// unit, a shorter one is filled with zeros.
template<std::size_t Size>
void ReadSlot(Data::Clips::Generated::AsciiOrUtf16String const& source, Corvane::Data::FixedText<Size>& destination)
{
    destination.isUtf16 = source.isUtf16;
    FillFrom<Size>(source.data, destination.payload.data());
    destination.end = {};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
