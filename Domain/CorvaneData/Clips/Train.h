#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "TimePoints/TimeCode.h"

#include <memory>
#include <vector>

namespace Talvo::Corvane::Data::Clips
{

/// A clip under recording with the ranges recorded so far. Owns both; can be moved, not copied.
class Train
{
public:
    /// Takes any values; `clip` may be null.
    Train(std::unique_ptr<Clip>&& clip, std::vector<RecordingRange>&& ranges, bool inMoving, bool outMoving,
          TimePoints::TimeCode&& lastTimeCode) noexcept;

    std::unique_ptr<Clip> trainClip; ///< may be null
    std::vector<RecordingRange> trainRanges;
    bool isInMoving;                        ///< the in bound is still moving
    bool isOutMoving;                       ///< the out bound is still moving
    TimePoints::TimeCode lastKnownTimeCode; ///< TimeCode::Empty() if none is known
};

} // namespace Talvo::Corvane::Data::Clips
