#pragma once

#include <cstdint>

namespace Talvo::TimePoints
{

/// A rational rate: `numerator` samples every `denominator` seconds.
struct VideoRate
{
    std::int64_t numerator;
    /// 1 for every rate that a TimeCode may carry.
    std::int64_t denominator;

    bool operator==(VideoRate const&) const = default;
};

} // namespace Talvo::TimePoints
