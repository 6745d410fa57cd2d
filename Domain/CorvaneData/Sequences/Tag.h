#pragma once

#include "Domain/CorvaneData/Sequences/TagProperty.h"

#include <cstdint>
#include <unordered_map>

namespace Talvo::Corvane::Data::Sequences
{

/// A command at a field position of an element, with at most one property per key.
struct Tag
{
    /// The action that the tag requests.
    enum class CommandType : std::int32_t
    {
        Custom = 0,
        GpiOut = 1,
        GpiOutOnEffect = 2,
        GpiOutAvsp = 3,
        SwapAudio = 4,
        LevelAudioIn = 5,
        LevelAudioOut = 6,
        Blurring = 7,
        Mute = 8,
        Hide = 9,
        Comment = 10,
        Group = 11,
        TriggerBroadcastIp = 12,
        VirtualElementVarId = 13,
        VirtualElementName = 14
    };

    /// Constructs a tag of that type with `id` and `field` 0 and without properties.
    explicit Tag(CommandType type)
        : commandType(type)
    {
    }

    bool operator==(Tag const&) const = default;

    std::int32_t id = 0;
    CommandType commandType;
    std::int64_t field = 0;
    std::unordered_map<TagProperty::Key, TagProperty> properties{10};
};

} // namespace Talvo::Corvane::Data::Sequences
