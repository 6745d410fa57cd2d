#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Data::Clips::Groups
{

/// Identifier of an angles group; sixteen zero bytes when default-constructed.
class Guid : public Data::Guid
{
public:
    using Data::Guid::operator=;

    bool operator==(Guid const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips::Groups
