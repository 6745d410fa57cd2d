#pragma once

#include <cstdint>

namespace Talvo::TimePoints
{

/// A position on the timeline of a server, in the server's own unit. A default-constructed one is Empty().
struct TimePoint
{
    std::int64_t position = -9223372036854775807;

    /// The value for "no position": the bit pattern 0x8000000000000001.
    static constexpr TimePoint Empty() noexcept { return {}; }

    bool operator==(TimePoint const&) const = default;
};

} // namespace Talvo::TimePoints
