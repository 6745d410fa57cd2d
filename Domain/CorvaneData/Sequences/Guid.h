#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Data::Sequences
{

/// Identifier of a sequence or playlist; sixteen zero bytes when default-constructed.
class Guid : public Data::Guid
{
public:
    using Data::Guid::operator=;

    /// Equal to Guid().
    static Guid const& Empty() noexcept;

    bool operator==(Guid const&) const = default;
};

} // namespace Talvo::Corvane::Data::Sequences
