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
    // A generator per call: it only asks the system for random bytes and keeps no state of its own, so neither threads
    // nor the two sides of a fork can draw the same identifier.
    auto const uuid = boost::uuids::random_generator_pure()();
    return Guid(uuid.data, Size);
}

} // namespace Talvo::Corvane::Data
