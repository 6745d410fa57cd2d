#pragma once

#include "Domain/CorvaneData/Clips/UmId.h"
#include "Domain/CorvaneData/Sequences/Enums.h"
#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "Domain/CorvaneData/Sequences/Speed.h"
#include "Domain/CorvaneData/Sequences/Tag.h"

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Data::Sequences
{

/// One item of a timeline: a part of a clip with its boundaries, transition, tags and speed.
struct Element
{
    std::int32_t id = 0;
    SequenceId sequenceId;
    std::int32_t position = 0;
    Clips::UmId umId; ///< the clip
    BoundaryType inBoundaryType = BoundaryType::Absolute;
    BoundaryType outBoundaryType = BoundaryType::Absolute;
    EffectPosition effectPosition = EffectPosition::None;
    StillMode stillMode = StillMode::None;
    std::int32_t transitionTimer = 0;
    std::vector<Tag> tags;
    Speed speed;
    std::int32_t internalLoopId = -1;
    std::int32_t internalLoopRunNb = 0;

    bool operator==(Element const&) const = default;
};

} // namespace Talvo::Corvane::Data::Sequences
