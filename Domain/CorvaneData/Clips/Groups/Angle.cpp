#include "Domain/CorvaneData/Clips/Groups/Angle.h"

namespace Talvo::Corvane::Data::Clips::Groups
{

Angle const& Angle::Empty() noexcept
{
    static constexpr Angle empty;
    return empty;
}

} // namespace Talvo::Corvane::Data::Clips::Groups
