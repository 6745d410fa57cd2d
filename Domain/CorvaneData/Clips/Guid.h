#pragma once

#include "Domain/CorvaneData/Guid.h"

#include <string>

namespace Talvo::Corvane::Data::Clips
{

/// Identifier of a clip; sixteen zero bytes when default-built.
class Guid : public Data::Guid
{
public:
    constexpr Guid() noexcept = default;

    /// Takes the first sixteen bytes of the text at most, as raw bytes; what is missing is zero.
    explicit Guid(std::string const& bytes) noexcept;

    using Data::Guid::operator=;

    /// Equal to Guid().
    static Guid const& Empty() noexcept;

    bool operator==(Guid const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips
