#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data::Servers
{

/// Number of a server in its network.
class ServerId
{
public:
    /// Takes any number.
    explicit constexpr ServerId(std::int32_t value) noexcept
        : value_(value)
    {
    }

    /// No server: -1.
    static ServerId const& None() noexcept;

    /// The number.
    std::int32_t Value() const noexcept { return value_; }

    bool operator==(ServerId const&) const = default;

private:
    std::int32_t value_;
};

} // namespace Talvo::Corvane::Data::Servers
