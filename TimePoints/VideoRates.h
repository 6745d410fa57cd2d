#pragma once

#include "TimePoints/VideoRate.h"

namespace Talvo::TimePoints
{

/// The fractional video rates, in samples per second. A TimeCode can't be built with one of them, because it only has
/// nominal integer rates.
class VideoRates
{
public:
    /// 120000/1001, nominal rate 120.
    static VideoRate const& Rate11988() noexcept;
    /// 60000/1001, nominal rate 60.
    static VideoRate const& Rate5994() noexcept;
    /// 48000/1001, nominal rate 48.
    static VideoRate const& Rate4795() noexcept;
    /// 30000/1001, nominal rate 30.
    static VideoRate const& Rate2997() noexcept;
    /// 24000/1001, nominal rate 24.
    static VideoRate const& Rate2398() noexcept;
};

} // namespace Talvo::TimePoints
