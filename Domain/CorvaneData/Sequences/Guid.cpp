#include "Domain/CorvaneData/Sequences/Guid.h"

namespace Talvo::Corvane::Data::Sequences
{

Guid const& Guid::Empty() noexcept
{
    static constexpr Guid empty;
    return empty;
}

} // namespace Talvo::Corvane::Data::Sequences
