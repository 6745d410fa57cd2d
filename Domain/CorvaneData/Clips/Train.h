#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "TimePoints/TimeCode.h"

#include <memory>
#include <vector>

namespace Talvo::Corvane::Data::Clips
{

/// A clip that is being recorded, and the ranges recorded so far. It owns both. It can be moved but not copied.
class Train
{
public:
    /// Accepts any values; `clip` may be null.
    Train(std::unique_ptr<Clip>&& clip, std::vector<RecordingRange>&& ranges, bool inMoving, bool outMoving,
          TimePoints::TimeCode&& lastTimeCode) noexcept;

    std::unique_ptr<Clip> trainClip; ///< may be null
    std::vector<RecordingRange> trainRanges;
    bool isInMoving;                        ///< whether the in bound is still moving
    bool isOutMoving;                       ///< whether the out bound is still moving
    TimePoints::TimeCode lastKnownTimeCode; ///< TimeCode::Empty() if none is known
};

} // namespace Talvo::Corvane::Data::Clips
