include "Essences.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Clips.Generated

enum PreferentialCamera {
    None = 0,
    Primary = 1,
    Secondary = 2
}

enum Rating {
    None = 0,
    Poor = 1,
    Good = 2,
    Best = 3
}

enum PrimaryTimecode {
    NotSet = 0,
    Tod = 1,
    User = 2
}

enum TimecodeType {
    AnalogLtc = 0,
    AtcLtc = 1,
    AtcVitc = 2
}

enum VideoStandard {
    Pal = 0,
    Ntsc = 1
}

enum VideoFormat {
    Sd = 0,
    Hd720p = 1,
    Hd1080i = 2,
    Hd1080p = 3,
    Uhd4k = 4,
    Shv8k = 5
}

enum CodedFrameAspectRatio {
    Unknown = 0,
    FourThirds = 1,
    SixteenNinths = 2
}

enum AfdAspectRatio {
    Unknown = 0,
    FullFrame = 1,
    PillarBox = 2,
    LetterBox = 3
}

enum Camera {
    NotSet = 0,
    A = 1,
    B = 2,
    C = 3,
    D = 4,
    E = 5,
    F = 6,
    G = 7,
    H = 8,
    I = 9,
    J = 10,
    K = 11,
    L = 12,
    X = 13,
    Y = 14,
    Z = 15
}

enum FillAndKeyStatus {
    None = 0,
    Fill = 1,
    Key = 2
}

enum ArchiveStatus {
    NoStore = 0,
    ToStore = 1,
    Stored = 2
}

enum AlphaArchiveStatus {
    None = 0,
    Important = 1,
    ImportantAndStored = 2
}

enum HdrProfile {
    Unknown = 0,
    Sdr = 1,
    Pq = 2,
    Hlg = 3,
    SLog3 = 4,
    VLog = 5
}

enum UhdDivisionMode {
    None = 0,
    Square = 1,
    SampleInterleave = 2
}

enum SourceEngine {
    None = 0,
    EditRec = 1,
    Timeline = 2,
    Derush = 3
}

enum TrainStatus {
    NotATrain = 0,
    InactiveTrain = 1,
    ActiveTrain = 2
}

struct AsciiOrUtf16String {
    1: string data
    2: bool isUtf16
}

struct Clip {
    1: string umId
    2: string sourceUmId
    3: string fillAndKeyUmId
    4: string materialId
    5: AsciiOrUtf16String name
    6: AsciiOrUtf16String varId
    7: list<AsciiOrUtf16String> keywords
    8: list<i16> userBits
    9: bool is3D
    10: bool isDual
    11: bool isTwinRec
    12: bool isLegacyTimecodeDrop
    13: TrainStatus trainStatus
    14: optional SourceEngine sourceEngine
    15: optional UhdDivisionMode uhdDivisionMode
    16: optional HdrProfile hdrProfile
    17: optional AlphaArchiveStatus alphaArchiveStatus
    18: ArchiveStatus archiveStatus
    19: optional FillAndKeyStatus fillAndKeyStatus
    20: i32 userProtect
    21: Camera camera
    22: optional AfdAspectRatio afdAspectRatio
    23: optional CodedFrameAspectRatio codedFrameAspectRatio
    24: VideoFormat videoFormat
    25: VideoStandard videoStandard
    26: TimecodeType userTimecodeType
    27: optional PrimaryTimecode primaryTimecode
    28: optional Rating rating
    29: optional PreferentialCamera preferentialCamera
    30: i64 inBoundField
    31: i64 shortInBoundField
    32: i64 shortOutBoundField
    33: i64 outBoundField
    34: i64 legacyTimecodeOffset
    35: i32 kviIndex
    36: i64 userLock
    37: i64 thumbnailOffset
    38: i64 sequence
    39: i64 machineSerial
    40: i32 nbAudioVideoChannels
    41: i32 dolbyMonoSignal
    42: optional string inBoundTodTimecode
    43: optional string inBoundUserTimecode
    44: optional string sourceInBoundTodTimecode
    45: optional string sourceInBoundUserTimecode
    46: optional i64 inBoundTimepoint
    47: optional Essences.Essence intraEssence
    48: optional Essences.Essence longGopEssence
    49: optional Essences.Essence lowResEssence
}
