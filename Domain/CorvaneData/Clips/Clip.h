#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "Domain/CorvaneData/FixedText.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace Talvo::Corvane::Data::Clips
{

/// Identifier text inside a clip: up to eight characters, then zero.
using UmIdText = std::array<char, 9>;

/// Replaces the identifier text: a longer text is cut to its first eight characters, a shorter one is padded with
/// zeros. A zero inside the text ends it for every reader.
/// @return whether the whole text fitted
bool SetUmId(UmIdText& destination, std::string_view text) noexcept;

/// A recorded clip. It owns no memory and is trivially copyable.
///
/// A value marks absence: 0 for an enumeration, TimeCode::Empty(), TimePoint::Empty(), RecordingStatus::NotPresent. Two
/// clips are equal if all fields are equal, including every byte of every text.
class Clip
{
public:
    /// One recorded form of the clip. A new one is cleared for Essences::Type::Intra.
    class Essence
    {
    public:
        /// Resets all thirteen fields: `recordingStatus` to NotPresent; metadata, compression types and compression
        /// information to the neutral enumerators of the type (for LongGop: LongGopNone and LongGopXdCam; for LowRes:
        /// LowResNone, LowResMjpeg and LowResMpeg1Layer2; for Intra: those with the number 0); all other fields to 0.
        void Clear(Essences::Type type) noexcept;

        Essences::Type Type() const noexcept { return type_; } ///< set only by Clear()

        /// Metadata of the encoding.
        Essences::Metadata Metadata() const noexcept { return metadata_; }
        /// Accepts any value, even one of another essence type.
        void Metadata(Essences::Metadata value) noexcept { metadata_ = value; }

        /// The compression of the video.
        Essences::VideoCompressionType VideoCompressionType() const noexcept { return videoCompressionType_; }
        /// Accepts any value, even one of another essence type.
        void VideoCompressionType(Essences::VideoCompressionType value) noexcept { videoCompressionType_ = value; }

        /// The compression of the audio.
        Essences::AudioCompressionType AudioCompressionType() const noexcept { return audioCompressionType_; }
        /// Accepts any value, even one of another essence type.
        void AudioCompressionType(Essences::AudioCompressionType value) noexcept { audioCompressionType_ = value; }

        /// Details of the video compression.
        Essences::VideoCompressionInfo VideoCompressionInfo() const noexcept { return videoCompressionInfo_; }
        /// Accepts any value, even one of another essence type.
        void VideoCompressionInfo(Essences::VideoCompressionInfo value) noexcept { videoCompressionInfo_ = value; }

        bool operator==(Essence const&) const = default;

    private:
        Essences::Type type_ = Essences::Type::Intra;

    public:
        Essences::RecordingStatus recordingStatus = Essences::RecordingStatus::NotPresent;
        Essences::ArchiveStatus archiveStatus = Essences::ArchiveStatus::NoStore;

    private:
        Essences::Metadata metadata_ = Essences::Metadata::IntraEncodingBitLengthUnknown;

    public:
        Essences::BlockSize blockSize = Essences::BlockSize::Unknown;

    private:
        Essences::VideoCompressionType videoCompressionType_ = Essences::VideoCompressionType::IntraMjpegRegular;
        Essences::AudioCompressionType audioCompressionType_ = Essences::AudioCompressionType::IntraNone;
        Essences::VideoCompressionInfo videoCompressionInfo_ = Essences::VideoCompressionInfo::IntraNone;

    public:
        Essences::AudioConfiguration audioConfiguration = Essences::AudioConfiguration::NoAudio;
        std::int32_t videoCompressionRate = 0;
        std::int32_t audioCompressionRate = 0;
        std::int32_t horizontalFrameSize = 0;
        std::int32_t verticalFrameSize = 0;
    };

    /// Constructs a clip with the defaults below; both in-bound time codes are DefaultTimecode(), and the three
    /// essences are cleared, each for its own type.
    Clip() noexcept;

    /// A clip in the state that Clip() constructs.
    static Clip const& Empty() noexcept;

    /// 1900-01-01T00:00:00:00 at 50/1, dated, non-drop. It counts as present, because it differs from
    /// TimeCode::Empty().
    static TimePoints::TimeCode DefaultTimecode() noexcept;

    /// The standard that TrySetInBoundTodTimecode() and TrySetInBoundUserTimecode() check against.
    Clips::VideoStandard VideoStandard() const noexcept { return videoStandard_; }

    /// Stores the standard. The time codes are neither checked again nor changed.
    void VideoStandard(Clips::VideoStandard standard) noexcept;

    /// The time-of-day time code of the in bound.
    TimePoints::TimeCode const& InBoundTodTimecode() const noexcept { return inBoundTodTimecode_; }
    /// The user time code of the in bound.
    TimePoints::TimeCode const& InBoundUserTimecode() const noexcept { return inBoundUserTimecode_; }

    /// Stores the time code and returns true, or stores nothing and returns false if its rate does not match the video
    /// standard: Pal matches the nominal rates 25, 50 and 100; Ntsc matches 24, 30, 48, 60 and 120. Two values are
    /// accepted under any standard: DefaultTimecode(), so that a clip whose time codes were never set can be copied
    /// field by field, and TimeCode::Empty(), which makes the time code absent.
    bool TrySetInBoundTodTimecode(TimePoints::TimeCode const& timecode) noexcept;

    /// Does for the user time code what TrySetInBoundTodTimecode() does for the time-of-day time code.
    bool TrySetInBoundUserTimecode(TimePoints::TimeCode const& timecode) noexcept;

    bool operator==(Clip const&) const = default;

    UmIdText umId = BlankUmId;
    UmIdText sourceUmId = BlankUmId;
    UmIdText fillAndKeyUmId = BlankUmId;
    UmIdText materialId = BlankUmId;
    FixedText<24> name;
    FixedText<24> reservedName; ///< not sent to the wire
    FixedText<32> varId;
    std::array<FixedText<12>, 5> keywords;
    std::array<unsigned char, 8> userBits{};
    bool is3D = false;
    bool isDual = false;
    bool isTwinRec = false;
    bool reservedFlagA = false; ///< not sent to the wire, like the next two
    bool reservedFlagB = false;
    bool reservedFlagC = false;
    bool isLegacyTimecodeDrop = false;
    TrainStatus trainStatus = TrainStatus::NotATrain;
    SourceEngine sourceEngine = SourceEngine::None;
    UhdDivisionMode uhdDivisionMode = UhdDivisionMode::None;
    HdrProfile hdrProfile = HdrProfile::Sdr;
    AlphaArchiveStatus alphaArchiveStatus = AlphaArchiveStatus::None;
    ArchiveStatus archiveStatus = ArchiveStatus::NoStore;
    FillAndKeyStatus fillAndKeyStatus = FillAndKeyStatus::None;
    std::int32_t userProtect = 0;
    Camera camera = Camera::NotSet;
    AfdAspectRatio afdAspectRatio = AfdAspectRatio::Unknown;
    CodedFrameAspectRatio codedFrameAspectRatio = CodedFrameAspectRatio::Unknown;
    VideoFormat videoFormat = VideoFormat::Sd;

private:
    Clips::VideoStandard videoStandard_ = Clips::VideoStandard::Pal;

public:
    TimecodeType userTimecodeType = TimecodeType::AtcVitc;
    PrimaryTimecode primaryTimecode = PrimaryTimecode::NotSet;
    Rating rating = Rating::None;
    PreferentialCamera preferentialCamera = PreferentialCamera::None;
    std::int32_t reservedValue = 2; ///< not sent to the wire
    std::int64_t inBoundField = 0;  ///< in fields, like the next three
    std::int64_t shortInBoundField = 0;
    std::int64_t shortOutBoundField = 0;
    std::int64_t outBoundField = 0;
    std::uint32_t legacyTimecodeOffset = 0;
    std::int32_t kviIndex = 0;
    std::uint32_t userLock = 0;
    std::uint32_t thumbnailOffset = 0;
    std::uint32_t sequence = 65535;
    std::uint32_t machineSerial = 0;
    std::int32_t nbAudioVideoChannels = 1;
    std::int32_t dolbyMonoSignal = 0;

private:
    TimePoints::TimeCode inBoundTodTimecode_;
    TimePoints::TimeCode inBoundUserTimecode_;

public:
    TimePoints::TimePoint inBoundTimepoint;
    Essence intraEssence;
    Essence longGopEssence;
    Essence lowResEssence;

private:
    bool TrySet(TimePoints::TimeCode& destination, TimePoints::TimeCode const& timecode) const noexcept;

    static constexpr UmIdText BlankUmId{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', '\0'};
};

} // namespace Talvo::Corvane::Data::Clips
