#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

namespace Talvo::Corvane::Data::Channels
{

/// The clip on one output of a player, and the output's position in it.
struct PlayerClipOnAir
{
    Clips::Clip clipOnAir;
    bool hasClipOnAir = false; ///< whether `clipOnAir` is valid
    TimePoints::TimePoint curTimePointOnAir;
    TimePoints::TimeCode todCurTimecodeOnAir;
    TimePoints::TimeCode userCurTimecodeOnAir;

    bool operator==(PlayerClipOnAir const&) const = default;
};

} // namespace Talvo::Corvane::Data::Channels
