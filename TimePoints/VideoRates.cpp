#include "TimePoints/VideoRates.h"

namespace Talvo::TimePoints
{

VideoRate const& VideoRates::Rate11988() noexcept
{
    static constexpr VideoRate rate{120000, 1001};
    return rate;
}

VideoRate const& VideoRates::Rate5994() noexcept
{
    static constexpr VideoRate rate{60000, 1001};
    return rate;
}

VideoRate const& VideoRates::Rate4795() noexcept
{
    static constexpr VideoRate rate{48000, 1001};
    return rate;
}

VideoRate const& VideoRates::Rate2997() noexcept
{
    static constexpr VideoRate rate{30000, 1001};
    return rate;
}

VideoRate const& VideoRates::Rate2398() noexcept
{
    static constexpr VideoRate rate{24000, 1001};
    return rate;
}

} // namespace Talvo::TimePoints
