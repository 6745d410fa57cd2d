#pragma once

#include <cstdint>

// The enumerations of the clip family. These types may hold numbers without an enumerator, which are never written to
// the wire.

namespace Talvo::Corvane::Data::Clips
{

/// Whether the clip is a train, that is, a recording that can still grow, and whether it is running.
enum class TrainStatus : std::int32_t
{
    NotATrain = 0,
    InactiveTrain = 1,
    ActiveTrain = 2
};

/// The engine that created the clip.
enum class SourceEngine : std::int32_t
{
    None = 0,
    EditRec = 1,
    Timeline = 2,
    Derush = 3
};

/// How an ultra-high-definition picture is divided into four HD streams.
enum class UhdDivisionMode : std::int32_t
{
    None = 0,
    Square = 1,
    SampleInterleave = 2
};

/// Transfer characteristic of the picture. A new clip is Sdr.
enum class HdrProfile : std::int32_t
{
    Unknown = 0,
    Sdr = 1,
    Pq = 2,
    Hlg = 3,
    SLog3 = 4,
    VLog = 5
};

/// Archive state of the alpha (key) signal.
enum class AlphaArchiveStatus : std::int32_t
{
    None = 0,
    Important = 1,
    ImportantAndStored = 2
};

/// Archive state of the clip.
enum class ArchiveStatus : std::int32_t
{
    NoStore = 0,
    ToStore = 1,
    Stored = 2
};

/// Which half of a fill and key pair the clip is.
enum class FillAndKeyStatus : std::int32_t
{
    None = 0,
    Fill = 1,
    Key = 2
};

/// Camera that the clip was recorded from.
enum class Camera : std::int32_t
{
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
};

/// Active format description: the position of the picture in the coded frame.
enum class AfdAspectRatio : std::int32_t
{
    Unknown = 0,
    FullFrame = 1,
    PillarBox = 2,
    LetterBox = 3
};

/// Aspect ratio of the coded frame.
enum class CodedFrameAspectRatio : std::int32_t
{
    Unknown = 0,
    FourThirds = 1,
    SixteenNinths = 2
};

/// Picture size and scan.
enum class VideoFormat : std::int32_t
{
    Sd = 0,
    Hd720p = 1,
    Hd1080i = 2,
    Hd1080p = 3,
    Uhd4k = 4,
    Shv8k = 5
};

/// Video standard. It determines the nominal rates that the clip's time codes may have.
enum class VideoStandard : std::int32_t
{
    Pal = 0,
    Ntsc = 1
};

/// Signal that a time code was read from.
enum class TimecodeType : std::int32_t
{
    AnalogLtc = 0,
    AtcLtc = 1,
    AtcVitc = 2
};

/// Which of the clip's two time codes is the primary one.
enum class PrimaryTimecode : std::int32_t
{
    NotSet = 0,
    Tod = 1,
    User = 2
};

/// Rating that an operator gave.
enum class Rating : std::int32_t
{
    None = 0,
    Poor = 1,
    Good = 2,
    Best = 3
};

/// Preference of an angle within its group.
enum class PreferentialCamera : std::int32_t
{
    None = 0,
    Primary = 1,
    Secondary = 2
};

} // namespace Talvo::Corvane::Data::Clips

namespace Talvo::Corvane::Data::Clips::Essences
{

/// Kind of an essence.
enum class Type : std::int32_t
{
    Intra = 0,
    LongGop = 1,
    LowRes = 2
};

/// State of an essence on its server. NotPresent: the clip has no such essence.
enum class RecordingStatus : std::int32_t
{
    NotPresent = 0,
    Reserved = 1,
    InCreation = 2,
    RecordInProgress = 3,
    OnDisk = 4
};

/// Archive state of one essence.
enum class ArchiveStatus : std::int32_t
{
    NoStore = 0,
    Stored = 1
};

/// Coding detail of an essence; each enumerator belongs to the essence type that it begins with.
enum class Metadata : std::int32_t
{
    IntraEncodingBitLengthUnknown = 0,
    IntraEncodingBitLength8 = 1,
    IntraEncodingBitLength10 = 2,
    LongGopNone = 3,
    LowResNone = 4
};

/// Storage block size. The wire uses different numbers for the same names.
enum class BlockSize : std::int32_t
{
    Unknown = 0,
    MB2 = 2,
    MB8 = 4,
    MB16 = 5
};

/// Video codec; each enumerator belongs to the essence type that it begins with.
enum class VideoCompressionType : std::int32_t
{
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
};

/// Audio codec; each enumerator belongs to the essence type that it begins with.
enum class AudioCompressionType : std::int32_t
{
    IntraNone = 0,
    LongGopNone = 1,
    LowResMpeg1Layer2 = 2
};

/// Codec variant; each enumerator belongs to the essence type that it begins with.
enum class VideoCompressionInfo : std::int32_t
{
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
};

/// Arrangement of the audio channels.
enum class AudioConfiguration : std::int32_t
{
    NoAudio = 0,
    Mono = 1,
    Stereo = 2,
    DualStereo = 3,
    EightMonos = 4,
    SixteenMonos = 5,
    TwentyFourMonos = 6,
    ThirtyTwoMonos = 7
};

} // namespace Talvo::Corvane::Data::Clips::Essences
