#pragma once

#include "Domain/CorvaneData/Guid.h"

#include <string>

namespace Talvo::Corvane::Data::Clips
{

/// Identifier of a clip; sixteen zero bytes when default-constructed.
class Guid : public Data::Guid
{
public:
    constexpr Guid() noexcept = default;

    /// Takes at most the first sixteen bytes of the text, as raw bytes; missing bytes are zero.
    explicit Guid(std::string const& bytes) noexcept;

    using Data::Guid::operator=;

    /// Equal to Guid().
    static Guid const& Empty() noexcept;

    bool operator==(Guid const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips
