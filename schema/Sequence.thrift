include "Clip.thrift"
include "SequenceId.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

enum TimeCodeRegenType {
    FullPlaylist = 0,
    ByElement = 1
}

enum TimeCodeRegenOutput {
    None = 0,
    HangVitc = 1,
    HangLtc = 2,
    All = 3
}

enum TimeCodeRegenSource {
    PlaylistRefTimecode = 0,
    ElementTodTimecode = 1,
    ElementUserTimecode = 2,
    UserBitsAndTimecodeOfFirstAudioTrack = 3
}

enum TimeCodeRegenBase {
    Irq = 0,
    Field = 1
}

struct Sequence {
    1: SequenceId.SequenceId id
    2: string umId
    3: Clip.AsciiOrUtf16String varId
    4: Clip.AsciiOrUtf16String name
    5: bool isTimeCodeRegen
    6: string timeCodeRegenReference
    7: TimeCodeRegenBase timeCodeRegenBase
    9: TimeCodeRegenSource timeCodeRegenSource
    10: TimeCodeRegenOutput timeCodeRegenOutput
    11: TimeCodeRegenType timeCodeRegenType
    12: i64 durationWithEffects
    13: i64 durationWithoutEffects
    14: i64 playRateNumerator
    15: i64 playRateDenominator
    16: bool isFixedDuration
    17: Clip.ArchiveStatus archiveStatus
}
