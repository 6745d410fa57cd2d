#include "Domain/CorvaneData/Guid.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>

#include <algorithm>

namespace Talvo::Corvane::Data
{

Guid::Guid(unsigned char const* bytes, unsigned int size) noexcept
{
    std::copy_n(bytes, std::min(size, Size), bytes_.begin());
}

Guid const& Guid::Empty() noexcept
{
    static constexpr Guid empty;
    return empty;
}

Guid Guid::Generate()
{
    // One generator per call: it only requests random bytes from the system and keeps no state, so neither threads nor
    // the two processes after a fork can generate the same identifier.
    auto const uuid = boost::uuids::random_generator_pure()();
    return Guid(uuid.data, Size);
}

} // namespace Talvo::Corvane::Data
