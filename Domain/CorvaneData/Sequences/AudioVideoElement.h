#pragma once

#include "Domain/CorvaneData/Sequences/Element.h"
#include "Domain/CorvaneData/Sequences/Enums.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Sequences
{

/// An element with picture and sound.
struct AudioVideoElement : Element
{
    bool operator==(AudioVideoElement const&) const = default;

    VideoEffectType videoEffectType = VideoEffectType::None;
    AudioEffectType audioEffectType = AudioEffectType::None;
    std::int32_t videoEffectDuration = 0;
    std::int32_t audioEffectDuration = 0;
    std::int64_t videoFieldIn = 0;
    std::int64_t videoFieldOut = 0;
    std::int64_t audioFieldIn = 0;
    std::int64_t audioFieldOut = 0;
};

} // namespace Talvo::Corvane::Data::Sequences
