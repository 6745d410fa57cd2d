namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Clips.Generated

enum AudioConfiguration {
    NoAudio = 0,
    Mono = 1,
    Stereo = 2,
    DualStereo = 3,
    EightMonos = 4,
    SixteenMonos = 5,
    TwentyFourMonos = 6,
    ThirtyTwoMonos = 7
}

enum VideoCompressionInfo {
    IntraNone = 0,
    IntraDnxHdUnknown = 1,
    IntraDnxHdLowBitrate = 2,
    IntraDnxHdHighBitrate = 3,
    IntraDnxHdHighBitrate10b = 4,
    IntraProResUnknown = 5,
    IntraProResStandardQuality = 6,
    IntraProResHighQuality = 7,
    IntraProResLt = 8,
    LongGopNone = 9,
    LowResNone = 10
}

enum AudioCompressionType {
    IntraNone = 0,
    LongGopNone = 1,
    LowResMpeg1Layer2 = 2
}

enum VideoCompressionType {
    IntraMjpegRegular = 0,
    IntraMjpegInverted = 1,
    IntraMpegIField = 2,
    IntraMpegIFrame = 3,
    IntraDnxHd = 4,
    IntraProRes = 5,
    IntraDvcPro100IField = 6,
    IntraDvcPro100IFrame = 7,
    IntraDvcPro50 = 8,
    IntraAvc100IntraIField = 9,
    IntraAvc100IntraIFrame = 10,
    IntraAvc50IntraIField = 11,
    IntraAvc50IntraIFrame = 12,
    IntraXAvc100IField = 13,
    IntraXAvc100IFrame = 14,
    IntraXAvc50IField = 15,
    IntraXAvc50IFrame = 16,
    IntraXAvc300 = 17,
    IntraAvc200IField = 18,
    IntraAvc200IFrame = 19,
    IntraXAvc200IField = 20,
    IntraXAvc200IFrame = 21,
    IntraAvc4K = 22,
    IntraXAvc480 = 23,
    LongGopXdCam = 24,
    LowResMjpeg = 25
}

enum BlockSize {
    Unknown = 0,
    MB2 = 1,
    MB8 = 2,
    MB16 = 3
}

enum Metadata {
    IntraEncodingBitLengthUnknown = 0,
    IntraEncodingBitLength8 = 1,
    IntraEncodingBitLength10 = 2,
    LongGopNone = 3,
    LowResNone = 4
}

enum EssenceArchiveStatus {
    NoStore = 0,
    Stored = 1
}

enum RecordingStatus {
    NotPresent = 0,
    Reserved = 1,
    InCreation = 2,
    RecordInProgress = 3,
    OnDisk = 4
}

enum Type {
    Intra = 0,
    LongGop = 1,
    LowRes = 2
}

struct Essence {
    1: Type type
    2: RecordingStatus recordingStatus
    3: EssenceArchiveStatus archiveStatus
    4: Metadata metadata
    5: BlockSize blockSize
    6: VideoCompressionType videoCompressionType
    7: AudioCompressionType audioCompressionType
    8: VideoCompressionInfo videoCompressionInfo
    9: AudioConfiguration audioConfiguration
    10: i32 videoCompressionRate
    11: i32 audioCompressionRate
    12: i32 horizontalFrameSize
    13: i32 verticalFrameSize
}
