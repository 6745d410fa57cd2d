#pragma once

#include <cstdint>

// The enumerations of the sequence family; those of tags are declared in Tag and TagProperty. These types may hold
// numbers without an enumerator, which are never written to the wire.

namespace Talvo::Corvane::Data::Sequences
{

/// What a boundary of an element is measured from.
enum class BoundaryType : std::int32_t
{
    Absolute = 0,
    RelativeClipCorresponding = 1,
    RelativeClipOpposite = 2,
    RelativeSelfOpposite = 3
};

/// The position of a transition relative to the cut.
enum class EffectPosition : std::int32_t
{
    None = 0,
    Before = 1,
    After = 2,
    Center = 3
};

/// Where an element is frozen.
enum class StillMode : std::int32_t
{
    None = 0,
    StopOnLastFrameOfPrevious = 1,
    StopOnFirstFrame = 2,
    StopWithTransitionTimer = 3,
    PauseWithTransitionTimer = 4
};

/// The transition of the picture.
enum class VideoEffectType : std::int32_t
{
    None = 0,
    Cut = 1,
    Mix = 2,
    WipeLeftRight = 3,
    WipeRightLeft = 4,
    WipeUpDown = 5,
    WipeDownUp = 6,
    MixStill = 7,
    WipeLeftRightStill = 8,
    WipeRightLeftStill = 9,
    WipeUpDownStill = 10,
    WipeDownUpStill = 11,
    FadeToBlack = 12,
    FadeFromBlack = 13,
    FadeToFromBlack = 14,
    FadeToWhite = 15,
    FadeFromWhite = 16,
    FadeToFromWhite = 17,
    FadeToColor = 18,
    FadeFromColor = 19,
    FadeToFromColor = 20
};

/// The transition of the sound.
enum class AudioEffectType : std::int32_t
{
    None = 0,
    Cut = 1,
    HardCut = 2,
    Mix = 3,
    MicroMix = 4,
    MixAfterOutBound = 5,
    FadeToMute = 6,
    FadeFromMute = 7,
    FadeToFromMute = 8
};

/// What a regenerated time code counts.
enum class TimeCodeRegenBase : std::int32_t
{
    Irq = 0,
    Field = 1
};

/// What a regenerated time code starts from.
enum class TimeCodeRegenSource : std::int32_t
{
    PlaylistRefTimecode = 0,
    ElementTodTimecode = 1,
    ElementUserTimecode = 2,
    UserBitsAndTimecodeOfFirstAudioTrack = 3
};

/// The outputs of a regenerated time code. `All` is a mask; its number on the wire is 3.
enum class TimeCodeRegenOutput : std::int32_t
{
    None = 0,
    HangVitc = 1,
    HangLtc = 2,
    All = 65535
};

/// How far a regenerated time code continues.
enum class TimeCodeRegenType : std::int32_t
{
    FullPlaylist = 0,
    ByElement = 1
};

} // namespace Talvo::Corvane::Data::Sequences
