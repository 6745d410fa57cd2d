#pragma once

// Internal, never installed.

#include <cstdint>

namespace Talvo::TimePoints
{

/// The samples that a rate counts per unit of time. Products that leave 64 bits wrap.
struct SampleUnits
{
    std::int64_t perDay;
    std::int64_t perHour;
    std::int64_t perMinute;
    /// What drop-frame counting adds back every ten minutes, which drop no number in their first minute.
    std::int64_t addedBack;

    static constexpr SampleUnits Of(std::int64_t numerator, bool dropFrame) noexcept
    {
        if (dropFrame && numerator == 30) return {2589408, 107892, 1798, 2};
        if (dropFrame && numerator == 60) return {5178816, 215784, 3596, 4};

        auto const n = static_cast<std::uint64_t>(numerator);
        return {static_cast<std::int64_t>(86400 * n), static_cast<std::int64_t>(3600 * n),
                static_cast<std::int64_t>(60 * n), dropFrame ? 2 : 0};
    }
};

} // namespace Talvo::TimePoints
