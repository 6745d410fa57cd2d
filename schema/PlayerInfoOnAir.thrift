namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated

enum PlayerModeType {
    Undefined = 0,
    Idle = 1,
    ClipEdit = 2,
    ClipEditPlay = 3,
    ClipDiffusion = 4,
    ClipDiffusionPlay = 5,
    ClipDiffusionLive = 6,
    PlaylistEditClipInOut = 7,
    PlaylistEditClipSInSOut = 8,
    PlaylistEditClipBIBOAudio = 9,
    PlaylistEditElementBIBOVideo = 10,
    PlaylistDiffusion = 11,
    PlaylistDiffusionSplit = 12,
    PlaylistDiffusionNoSplit = 13
}

enum PlayerModeStatus {
    Idle = 0,
    Live = 1,
    Empty = 2,
    Cueing = 3,
    Ready = 4,
    Playing = 5
}

enum PlayoutConfig {
    Undefined = 0,
    None = 1,
    Mix = 2,
    Cut = 3,
    TimelineEditRec = 4,
    TimelineEditPlay = 5,
    TimelineDiffusionMix = 6,
    TimelineDiffusionCut = 7
}

struct PlayerInfoOnAir {
    1: optional PlayoutConfig playoutConfig
    2: PlayerModeStatus status
    3: PlayerModeType mode
    4: optional i32 commonSpeedNumerator
    5: optional i32 commonSpeedDenominator
    6: optional i32 curVideoSpeedNumerator
    7: optional i32 curVideoSpeedDenominator
    8: i32 audioPgmInstruction
    9: i32 audioPgmInstructionDecSpeedD
    10: i64 fieldPgm
    11: i64 fieldPgmAudio
    12: i64 fieldPreview
    13: i64 curFieldInProtect
    14: i64 curFieldOutProtect
    15: i64 limitIn
    16: i64 limitOut
    17: i64 limitUserIn
    18: i64 limitUserOut
}
