#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data::Sequences
{

/// The play speed of an element, as a fraction of normal speed.
struct Speed
{
    std::int32_t numerator = 0;
    std::int32_t denominator = 1;

    bool operator==(Speed const&) const = default;
};

} // namespace Talvo::Corvane::Data::Sequences
