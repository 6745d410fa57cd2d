#pragma once

#include <cstddef>
#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Replaces `destination` by `Size` characters. One without the room becomes a new string, which costs a third less than
/// growing it does.
template<std::size_t Size>
void Assign(std::string& destination, char const* const source)
{
    if (destination.capacity() < Size)
        destination = std::string(source, Size);
    else
        destination.assign(source, Size);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
