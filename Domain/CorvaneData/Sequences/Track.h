#pragma once

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Data::Sequences
{

/// The elements of a timeline. If they are not loaded, there are no elements and their number is above 0.
template<typename T>
struct Track
{
    std::int32_t numberOfElements = 0;
    std::vector<T> elements;

    bool operator==(Track const&) const = default;
};

} // namespace Talvo::Corvane::Data::Sequences
