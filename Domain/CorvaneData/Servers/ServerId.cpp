#include "Domain/CorvaneData/Servers/ServerId.h"

namespace Talvo::Corvane::Data::Servers
{

ServerId const& ServerId::None() noexcept
{
    static constexpr ServerId none(-1);
    return none;
}

} // namespace Talvo::Corvane::Data::Servers
