#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data::Servers
{

/// The number of a server in its network.
class ServerId
{
public:
    /// Accepts any number.
    explicit constexpr ServerId(std::int32_t value) noexcept
        : value_(value)
    {
    }

    /// The value for "no server": -1.
    static ServerId const& None() noexcept;

    /// The number.
    std::int32_t Value() const noexcept { return value_; }

    bool operator==(ServerId const&) const = default;

private:
    std::int32_t value_;
};

} // namespace Talvo::Corvane::Data::Servers
