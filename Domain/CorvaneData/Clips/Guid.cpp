#include "Domain/CorvaneData/Clips/Guid.h"

#include <algorithm>

namespace Talvo::Corvane::Data::Clips
{

Guid::Guid(std::string const& bytes) noexcept
    : Data::Guid(reinterpret_cast<unsigned char const*>(bytes.data()),
                 static_cast<unsigned int>(std::min<std::size_t>(bytes.size(), Size)))
{
}

Guid const& Guid::Empty() noexcept
{
    static constexpr Guid empty;
    return empty;
}

} // namespace Talvo::Corvane::Data::Clips
