include "SequenceId.thrift"
include "Tag.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

enum AudioEffectType {
    None = 0,
    Cut = 1,
    HardCut = 2,
    Mix = 3,
    MicroMix = 4,
    MixAfterOutBound = 5,
    FadeToMute = 6,
    FadeFromMute = 7,
    FadeToFromMute = 8
}

enum VideoEffectType {
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
}

enum StillMode {
    None = 0,
    StopOnLastFrameOfPrevious = 1,
    StopOnFirstFrame = 2,
    StopWithTransitionTimer = 3,
    PauseWithTransitionTimer = 4
}

enum EffectPosition {
    None = 0,
    Before = 1,
    After = 2,
    Center = 3
}

enum BoundaryType {
    Absolute = 0,
    RelativeClipCorresponding = 1,
    RelativeClipOpposite = 2,
    RelativeSelfOpposite = 3
}

struct Speed {
    1: i32 numerator
    2: i32 denominator
}

struct Element {
    1: i32 id
    2: SequenceId.SequenceId sequenceId
    3: i32 position
    4: string umId
    5: BoundaryType inBoundaryType
    6: BoundaryType outBoundaryType
    7: EffectPosition effectPosition
    8: StillMode stillMode
    9: i32 transitionTimer
    10: list<Tag.Tag> tags
    11: Speed speed
    12: i32 internalLoopId
    13: i32 internalLoopRunNb
}
