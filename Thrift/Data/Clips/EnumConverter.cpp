#include "Thrift/Data/Clips/EnumConverter.h"

#include "Thrift/EnumAssociation.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::EnumConverter
{

namespace Domain = Corvane::Data::Clips;

namespace
{

constexpr EnumAssociation<Domain::TrainStatus, Generated::TrainStatus::type> trainStatus{
    {Domain::TrainStatus::NotATrain, Generated::TrainStatus::NotATrain},
    {Domain::TrainStatus::InactiveTrain, Generated::TrainStatus::InactiveTrain},
    {Domain::TrainStatus::ActiveTrain, Generated::TrainStatus::ActiveTrain},
};

constexpr EnumAssociation<Domain::SourceEngine, Generated::SourceEngine::type> sourceEngine{
    {Domain::SourceEngine::None, Generated::SourceEngine::None},
    {Domain::SourceEngine::EditRec, Generated::SourceEngine::EditRec},
    {Domain::SourceEngine::Timeline, Generated::SourceEngine::Timeline},
    {Domain::SourceEngine::Derush, Generated::SourceEngine::Derush},
};

constexpr EnumAssociation<Domain::UhdDivisionMode, Generated::UhdDivisionMode::type> uhdDivisionMode{
    {Domain::UhdDivisionMode::None, Generated::UhdDivisionMode::None},
    {Domain::UhdDivisionMode::Square, Generated::UhdDivisionMode::Square},
    {Domain::UhdDivisionMode::SampleInterleave, Generated::UhdDivisionMode::SampleInterleave},
};

constexpr EnumAssociation<Domain::HdrProfile, Generated::HdrProfile::type> hdrProfile{
    {Domain::HdrProfile::Unknown, Generated::HdrProfile::Unknown},
    {Domain::HdrProfile::Sdr, Generated::HdrProfile::Sdr},
    {Domain::HdrProfile::Pq, Generated::HdrProfile::Pq},
    {Domain::HdrProfile::Hlg, Generated::HdrProfile::Hlg},
    {Domain::HdrProfile::SLog3, Generated::HdrProfile::SLog3},
    {Domain::HdrProfile::VLog, Generated::HdrProfile::VLog},
};

constexpr EnumAssociation<Domain::AlphaArchiveStatus, Generated::AlphaArchiveStatus::type> alphaArchiveStatus{
    {Domain::AlphaArchiveStatus::None, Generated::AlphaArchiveStatus::None},
    {Domain::AlphaArchiveStatus::Important, Generated::AlphaArchiveStatus::Important},
    {Domain::AlphaArchiveStatus::ImportantAndStored, Generated::AlphaArchiveStatus::ImportantAndStored},
};

constexpr EnumAssociation<Domain::ArchiveStatus, Generated::ArchiveStatus::type> archiveStatus{
    {Domain::ArchiveStatus::NoStore, Generated::ArchiveStatus::NoStore},
    {Domain::ArchiveStatus::ToStore, Generated::ArchiveStatus::ToStore},
    {Domain::ArchiveStatus::Stored, Generated::ArchiveStatus::Stored},
};

constexpr EnumAssociation<Domain::FillAndKeyStatus, Generated::FillAndKeyStatus::type> fillAndKeyStatus{
    {Domain::FillAndKeyStatus::None, Generated::FillAndKeyStatus::None},
    {Domain::FillAndKeyStatus::Fill, Generated::FillAndKeyStatus::Fill},
    {Domain::FillAndKeyStatus::Key, Generated::FillAndKeyStatus::Key},
};

constexpr EnumAssociation<Domain::Camera, Generated::Camera::type> camera{
    {Domain::Camera::NotSet, Generated::Camera::NotSet}, {Domain::Camera::A, Generated::Camera::A},
    {Domain::Camera::B, Generated::Camera::B},           {Domain::Camera::C, Generated::Camera::C},
    {Domain::Camera::D, Generated::Camera::D},           {Domain::Camera::E, Generated::Camera::E},
    {Domain::Camera::F, Generated::Camera::F},           {Domain::Camera::G, Generated::Camera::G},
    {Domain::Camera::H, Generated::Camera::H},           {Domain::Camera::I, Generated::Camera::I},
    {Domain::Camera::J, Generated::Camera::J},           {Domain::Camera::K, Generated::Camera::K},
    {Domain::Camera::L, Generated::Camera::L},           {Domain::Camera::X, Generated::Camera::X},
    {Domain::Camera::Y, Generated::Camera::Y},           {Domain::Camera::Z, Generated::Camera::Z},
};

constexpr EnumAssociation<Domain::AfdAspectRatio, Generated::AfdAspectRatio::type> afdAspectRatio{
    {Domain::AfdAspectRatio::Unknown, Generated::AfdAspectRatio::Unknown},
    {Domain::AfdAspectRatio::FullFrame, Generated::AfdAspectRatio::FullFrame},
    {Domain::AfdAspectRatio::PillarBox, Generated::AfdAspectRatio::PillarBox},
    {Domain::AfdAspectRatio::LetterBox, Generated::AfdAspectRatio::LetterBox},
};

constexpr EnumAssociation<Domain::CodedFrameAspectRatio, Generated::CodedFrameAspectRatio::type> codedFrameAspectRatio{
    {Domain::CodedFrameAspectRatio::Unknown, Generated::CodedFrameAspectRatio::Unknown},
    {Domain::CodedFrameAspectRatio::FourThirds, Generated::CodedFrameAspectRatio::FourThirds},
    {Domain::CodedFrameAspectRatio::SixteenNinths, Generated::CodedFrameAspectRatio::SixteenNinths},
};

constexpr EnumAssociation<Domain::VideoFormat, Generated::VideoFormat::type> videoFormat{
    {Domain::VideoFormat::Sd, Generated::VideoFormat::Sd},
    {Domain::VideoFormat::Hd720p, Generated::VideoFormat::Hd720p},
    {Domain::VideoFormat::Hd1080i, Generated::VideoFormat::Hd1080i},
    {Domain::VideoFormat::Hd1080p, Generated::VideoFormat::Hd1080p},
    {Domain::VideoFormat::Uhd4k, Generated::VideoFormat::Uhd4k},
    {Domain::VideoFormat::Shv8k, Generated::VideoFormat::Shv8k},
};

constexpr EnumAssociation<Domain::VideoStandard, Generated::VideoStandard::type> videoStandard{
    {Domain::VideoStandard::Pal, Generated::VideoStandard::Pal},
    {Domain::VideoStandard::Ntsc, Generated::VideoStandard::Ntsc},
};

constexpr EnumAssociation<Domain::TimecodeType, Generated::TimecodeType::type> timecodeType{
    {Domain::TimecodeType::AnalogLtc, Generated::TimecodeType::AnalogLtc},
    {Domain::TimecodeType::AtcLtc, Generated::TimecodeType::AtcLtc},
    {Domain::TimecodeType::AtcVitc, Generated::TimecodeType::AtcVitc},
};

constexpr EnumAssociation<Domain::PrimaryTimecode, Generated::PrimaryTimecode::type> primaryTimecode{
    {Domain::PrimaryTimecode::NotSet, Generated::PrimaryTimecode::NotSet},
    {Domain::PrimaryTimecode::Tod, Generated::PrimaryTimecode::Tod},
    {Domain::PrimaryTimecode::User, Generated::PrimaryTimecode::User},
};

constexpr EnumAssociation<Domain::Rating, Generated::Rating::type> rating{
    {Domain::Rating::None, Generated::Rating::None},
    {Domain::Rating::Poor, Generated::Rating::Poor},
    {Domain::Rating::Good, Generated::Rating::Good},
    {Domain::Rating::Best, Generated::Rating::Best},
};

constexpr EnumAssociation<Domain::PreferentialCamera, Generated::PreferentialCamera::type> preferentialCamera{
    {Domain::PreferentialCamera::None, Generated::PreferentialCamera::None},
    {Domain::PreferentialCamera::Primary, Generated::PreferentialCamera::Primary},
    {Domain::PreferentialCamera::Secondary, Generated::PreferentialCamera::Secondary},
};

constexpr EnumAssociation<Domain::Essences::Type, Generated::Type::type> essType{
    {Domain::Essences::Type::Intra, Generated::Type::Intra},
    {Domain::Essences::Type::LongGop, Generated::Type::LongGop},
    {Domain::Essences::Type::LowRes, Generated::Type::LowRes},
};

constexpr EnumAssociation<Domain::Essences::RecordingStatus, Generated::RecordingStatus::type> recordingStatus{
    {Domain::Essences::RecordingStatus::NotPresent, Generated::RecordingStatus::NotPresent},
    {Domain::Essences::RecordingStatus::Reserved, Generated::RecordingStatus::Reserved},
    {Domain::Essences::RecordingStatus::InCreation, Generated::RecordingStatus::InCreation},
    {Domain::Essences::RecordingStatus::RecordInProgress, Generated::RecordingStatus::RecordInProgress},
    {Domain::Essences::RecordingStatus::OnDisk, Generated::RecordingStatus::OnDisk},
};

constexpr EnumAssociation<Domain::Essences::ArchiveStatus, Generated::EssenceArchiveStatus::type> essenceArchiveStatus{
    {Domain::Essences::ArchiveStatus::NoStore, Generated::EssenceArchiveStatus::NoStore},
    {Domain::Essences::ArchiveStatus::Stored, Generated::EssenceArchiveStatus::Stored},
};

constexpr EnumAssociation<Domain::Essences::Metadata, Generated::Metadata::type> metadata{
    {Domain::Essences::Metadata::IntraEncodingBitLengthUnknown, Generated::Metadata::IntraEncodingBitLengthUnknown},
    {Domain::Essences::Metadata::IntraEncodingBitLength8, Generated::Metadata::IntraEncodingBitLength8},
    {Domain::Essences::Metadata::IntraEncodingBitLength10, Generated::Metadata::IntraEncodingBitLength10},
    {Domain::Essences::Metadata::LongGopNone, Generated::Metadata::LongGopNone},
    {Domain::Essences::Metadata::LowResNone, Generated::Metadata::LowResNone},
};

constexpr EnumAssociation<Domain::Essences::BlockSize, Generated::BlockSize::type> blockSize{
    {Domain::Essences::BlockSize::Unknown, Generated::BlockSize::Unknown},
    {Domain::Essences::BlockSize::MB2, Generated::BlockSize::MB2},
    {Domain::Essences::BlockSize::MB8, Generated::BlockSize::MB8},
    {Domain::Essences::BlockSize::MB16, Generated::BlockSize::MB16},
};

constexpr EnumAssociation<Domain::Essences::VideoCompressionType, Generated::VideoCompressionType::type>
    videoCompressionType{
        {Domain::Essences::VideoCompressionType::IntraMjpegRegular, Generated::VideoCompressionType::IntraMjpegRegular},
        {Domain::Essences::VideoCompressionType::IntraMjpegInverted,
         Generated::VideoCompressionType::IntraMjpegInverted},
        {Domain::Essences::VideoCompressionType::IntraMpegIField, Generated::VideoCompressionType::IntraMpegIField},
        {Domain::Essences::VideoCompressionType::IntraMpegIFrame, Generated::VideoCompressionType::IntraMpegIFrame},
        {Domain::Essences::VideoCompressionType::IntraDnxHd, Generated::VideoCompressionType::IntraDnxHd},
        {Domain::Essences::VideoCompressionType::IntraProRes, Generated::VideoCompressionType::IntraProRes},
        {Domain::Essences::VideoCompressionType::IntraDvcPro100IField,
         Generated::VideoCompressionType::IntraDvcPro100IField},
        {Domain::Essences::VideoCompressionType::IntraDvcPro100IFrame,
         Generated::VideoCompressionType::IntraDvcPro100IFrame},
        {Domain::Essences::VideoCompressionType::IntraDvcPro50, Generated::VideoCompressionType::IntraDvcPro50},
        {Domain::Essences::VideoCompressionType::IntraAvc100IntraIField,
         Generated::VideoCompressionType::IntraAvc100IntraIField},
        {Domain::Essences::VideoCompressionType::IntraAvc100IntraIFrame,
         Generated::VideoCompressionType::IntraAvc100IntraIFrame},
        {Domain::Essences::VideoCompressionType::IntraAvc50IntraIField,
         Generated::VideoCompressionType::IntraAvc50IntraIField},
        {Domain::Essences::VideoCompressionType::IntraAvc50IntraIFrame,
         Generated::VideoCompressionType::IntraAvc50IntraIFrame},
        {Domain::Essences::VideoCompressionType::IntraXAvc100IField,
         Generated::VideoCompressionType::IntraXAvc100IField},
        {Domain::Essences::VideoCompressionType::IntraXAvc100IFrame,
         Generated::VideoCompressionType::IntraXAvc100IFrame},
        {Domain::Essences::VideoCompressionType::IntraXAvc50IField, Generated::VideoCompressionType::IntraXAvc50IField},
        {Domain::Essences::VideoCompressionType::IntraXAvc50IFrame, Generated::VideoCompressionType::IntraXAvc50IFrame},
        {Domain::Essences::VideoCompressionType::IntraXAvc300, Generated::VideoCompressionType::IntraXAvc300},
        {Domain::Essences::VideoCompressionType::IntraAvc200IField, Generated::VideoCompressionType::IntraAvc200IField},
        {Domain::Essences::VideoCompressionType::IntraAvc200IFrame, Generated::VideoCompressionType::IntraAvc200IFrame},
        {Domain::Essences::VideoCompressionType::IntraXAvc200IField,
         Generated::VideoCompressionType::IntraXAvc200IField},
        {Domain::Essences::VideoCompressionType::IntraXAvc200IFrame,
         Generated::VideoCompressionType::IntraXAvc200IFrame},
        {Domain::Essences::VideoCompressionType::IntraAvc4K, Generated::VideoCompressionType::IntraAvc4K},
        {Domain::Essences::VideoCompressionType::IntraXAvc480, Generated::VideoCompressionType::IntraXAvc480},
        {Domain::Essences::VideoCompressionType::LongGopXdCam, Generated::VideoCompressionType::LongGopXdCam},
        {Domain::Essences::VideoCompressionType::LowResMjpeg, Generated::VideoCompressionType::LowResMjpeg},
    };

constexpr EnumAssociation<Domain::Essences::AudioCompressionType, Generated::AudioCompressionType::type>
    audioCompressionType{
        {Domain::Essences::AudioCompressionType::IntraNone, Generated::AudioCompressionType::IntraNone},
        {Domain::Essences::AudioCompressionType::LongGopNone, Generated::AudioCompressionType::LongGopNone},
        {Domain::Essences::AudioCompressionType::LowResMpeg1Layer2, Generated::AudioCompressionType::LowResMpeg1Layer2},
    };

constexpr EnumAssociation<Domain::Essences::VideoCompressionInfo, Generated::VideoCompressionInfo::type>
    videoCompressionInfo{
        {Domain::Essences::VideoCompressionInfo::IntraNone, Generated::VideoCompressionInfo::IntraNone},
        {Domain::Essences::VideoCompressionInfo::IntraDnxHdUnknown, Generated::VideoCompressionInfo::IntraDnxHdUnknown},
        {Domain::Essences::VideoCompressionInfo::IntraDnxHdLowBitrate,
         Generated::VideoCompressionInfo::IntraDnxHdLowBitrate},
        {Domain::Essences::VideoCompressionInfo::IntraDnxHdHighBitrate,
         Generated::VideoCompressionInfo::IntraDnxHdHighBitrate},
        {Domain::Essences::VideoCompressionInfo::IntraDnxHdHighBitrate10b,
         Generated::VideoCompressionInfo::IntraDnxHdHighBitrate10b},
        {Domain::Essences::VideoCompressionInfo::IntraProResUnknown,
         Generated::VideoCompressionInfo::IntraProResUnknown},
        {Domain::Essences::VideoCompressionInfo::IntraProResStandardQuality,
         Generated::VideoCompressionInfo::IntraProResStandardQuality},
        {Domain::Essences::VideoCompressionInfo::IntraProResHighQuality,
         Generated::VideoCompressionInfo::IntraProResHighQuality},
        {Domain::Essences::VideoCompressionInfo::IntraProResLt, Generated::VideoCompressionInfo::IntraProResLt},
        {Domain::Essences::VideoCompressionInfo::LongGopNone, Generated::VideoCompressionInfo::LongGopNone},
        {Domain::Essences::VideoCompressionInfo::LowResNone, Generated::VideoCompressionInfo::LowResNone},
    };

constexpr EnumAssociation<Domain::Essences::AudioConfiguration, Generated::AudioConfiguration::type> audioConfiguration{
    {Domain::Essences::AudioConfiguration::NoAudio, Generated::AudioConfiguration::NoAudio},
    {Domain::Essences::AudioConfiguration::Mono, Generated::AudioConfiguration::Mono},
    {Domain::Essences::AudioConfiguration::Stereo, Generated::AudioConfiguration::Stereo},
    {Domain::Essences::AudioConfiguration::DualStereo, Generated::AudioConfiguration::DualStereo},
    {Domain::Essences::AudioConfiguration::EightMonos, Generated::AudioConfiguration::EightMonos},
    {Domain::Essences::AudioConfiguration::SixteenMonos, Generated::AudioConfiguration::SixteenMonos},
    {Domain::Essences::AudioConfiguration::TwentyFourMonos, Generated::AudioConfiguration::TwentyFourMonos},
    {Domain::Essences::AudioConfiguration::ThirtyTwoMonos, Generated::AudioConfiguration::ThirtyTwoMonos},
};
} // namespace

Generated::TrainStatus::type ToGeneratedEnum(Domain::TrainStatus const value) noexcept
{
    return trainStatus.ToGeneratedEnum(value);
}

Domain::TrainStatus FromGeneratedEnum(Generated::TrainStatus::type const value) noexcept
{
    return trainStatus.FromGeneratedEnum(value);
}

Generated::SourceEngine::type ToGeneratedEnum(Domain::SourceEngine const value) noexcept
{
    return sourceEngine.ToGeneratedEnum(value);
}

Domain::SourceEngine FromGeneratedEnum(Generated::SourceEngine::type const value) noexcept
{
    return sourceEngine.FromGeneratedEnum(value);
}

Generated::UhdDivisionMode::type ToGeneratedEnum(Domain::UhdDivisionMode const value) noexcept
{
    return uhdDivisionMode.ToGeneratedEnum(value);
}

Domain::UhdDivisionMode FromGeneratedEnum(Generated::UhdDivisionMode::type const value) noexcept
{
    return uhdDivisionMode.FromGeneratedEnum(value);
}

Generated::HdrProfile::type ToGeneratedEnum(Domain::HdrProfile const value) noexcept
{
    return hdrProfile.ToGeneratedEnum(value);
}

Domain::HdrProfile FromGeneratedEnum(Generated::HdrProfile::type const value) noexcept
{
    return hdrProfile.FromGeneratedEnum(value);
}

Generated::AlphaArchiveStatus::type ToGeneratedEnum(Domain::AlphaArchiveStatus const value) noexcept
{
    return alphaArchiveStatus.ToGeneratedEnum(value);
}

Domain::AlphaArchiveStatus FromGeneratedEnum(Generated::AlphaArchiveStatus::type const value) noexcept
{
    return alphaArchiveStatus.FromGeneratedEnum(value);
}

Generated::ArchiveStatus::type ToGeneratedEnum(Domain::ArchiveStatus const value) noexcept
{
    return archiveStatus.ToGeneratedEnum(value);
}

Domain::ArchiveStatus FromGeneratedEnum(Generated::ArchiveStatus::type const value) noexcept
{
    return archiveStatus.FromGeneratedEnum(value);
}

Generated::FillAndKeyStatus::type ToGeneratedEnum(Domain::FillAndKeyStatus const value) noexcept
{
    return fillAndKeyStatus.ToGeneratedEnum(value);
}

Domain::FillAndKeyStatus FromGeneratedEnum(Generated::FillAndKeyStatus::type const value) noexcept
{
    return fillAndKeyStatus.FromGeneratedEnum(value);
}

Generated::Camera::type ToGeneratedEnum(Domain::Camera const value) noexcept
{
    return camera.ToGeneratedEnum(value);
}

Domain::Camera FromGeneratedEnum(Generated::Camera::type const value) noexcept
{
    return camera.FromGeneratedEnum(value);
}

Generated::AfdAspectRatio::type ToGeneratedEnum(Domain::AfdAspectRatio const value) noexcept
{
    return afdAspectRatio.ToGeneratedEnum(value);
}

Domain::AfdAspectRatio FromGeneratedEnum(Generated::AfdAspectRatio::type const value) noexcept
{
    return afdAspectRatio.FromGeneratedEnum(value);
}

Generated::CodedFrameAspectRatio::type ToGeneratedEnum(Domain::CodedFrameAspectRatio const value) noexcept
{
    return codedFrameAspectRatio.ToGeneratedEnum(value);
}

Domain::CodedFrameAspectRatio FromGeneratedEnum(Generated::CodedFrameAspectRatio::type const value) noexcept
{
    return codedFrameAspectRatio.FromGeneratedEnum(value);
}

Generated::VideoFormat::type ToGeneratedEnum(Domain::VideoFormat const value) noexcept
{
    return videoFormat.ToGeneratedEnum(value);
}

Domain::VideoFormat FromGeneratedEnum(Generated::VideoFormat::type const value) noexcept
{
    return videoFormat.FromGeneratedEnum(value);
}

Generated::VideoStandard::type ToGeneratedEnum(Domain::VideoStandard const value) noexcept
{
    return videoStandard.ToGeneratedEnum(value);
}

Domain::VideoStandard FromGeneratedEnum(Generated::VideoStandard::type const value) noexcept
{
    return videoStandard.FromGeneratedEnum(value);
}

Generated::TimecodeType::type ToGeneratedEnum(Domain::TimecodeType const value) noexcept
{
    return timecodeType.ToGeneratedEnum(value);
}

Domain::TimecodeType FromGeneratedEnum(Generated::TimecodeType::type const value) noexcept
{
    return timecodeType.FromGeneratedEnum(value);
}

Generated::PrimaryTimecode::type ToGeneratedEnum(Domain::PrimaryTimecode const value) noexcept
{
    return primaryTimecode.ToGeneratedEnum(value);
}

Domain::PrimaryTimecode FromGeneratedEnum(Generated::PrimaryTimecode::type const value) noexcept
{
    return primaryTimecode.FromGeneratedEnum(value);
}

Generated::Rating::type ToGeneratedEnum(Domain::Rating const value) noexcept
{
    return rating.ToGeneratedEnum(value);
}

Domain::Rating FromGeneratedEnum(Generated::Rating::type const value) noexcept
{
    return rating.FromGeneratedEnum(value);
}

Generated::PreferentialCamera::type ToGeneratedEnum(Domain::PreferentialCamera const value) noexcept
{
    return preferentialCamera.ToGeneratedEnum(value);
}

Domain::PreferentialCamera FromGeneratedEnum(Generated::PreferentialCamera::type const value) noexcept
{
    return preferentialCamera.FromGeneratedEnum(value);
}

Generated::Type::type ToGeneratedEnum(Domain::Essences::Type const value) noexcept
{
    return essType.ToGeneratedEnum(value);
}

Domain::Essences::Type FromGeneratedEnum(Generated::Type::type const value) noexcept
{
    return essType.FromGeneratedEnum(value);
}

Generated::RecordingStatus::type ToGeneratedEnum(Domain::Essences::RecordingStatus const value) noexcept
{
    return recordingStatus.ToGeneratedEnum(value);
}

Domain::Essences::RecordingStatus FromGeneratedEnum(Generated::RecordingStatus::type const value) noexcept
{
    return recordingStatus.FromGeneratedEnum(value);
}

Generated::EssenceArchiveStatus::type ToGeneratedEnum(Domain::Essences::ArchiveStatus const value) noexcept
{
    return essenceArchiveStatus.ToGeneratedEnum(value);
}

Domain::Essences::ArchiveStatus FromGeneratedEnum(Generated::EssenceArchiveStatus::type const value) noexcept
{
    return essenceArchiveStatus.FromGeneratedEnum(value);
}

Generated::Metadata::type ToGeneratedEnum(Domain::Essences::Metadata const value) noexcept
{
    return metadata.ToGeneratedEnum(value);
}

Domain::Essences::Metadata FromGeneratedEnum(Generated::Metadata::type const value) noexcept
{
    return metadata.FromGeneratedEnum(value);
}

Generated::BlockSize::type ToGeneratedEnum(Domain::Essences::BlockSize const value) noexcept
{
    return blockSize.ToGeneratedEnum(value);
}

Domain::Essences::BlockSize FromGeneratedEnum(Generated::BlockSize::type const value) noexcept
{
    return blockSize.FromGeneratedEnum(value);
}

Generated::VideoCompressionType::type ToGeneratedEnum(Domain::Essences::VideoCompressionType const value) noexcept
{
    return videoCompressionType.ToGeneratedEnum(value);
}

Domain::Essences::VideoCompressionType FromGeneratedEnum(Generated::VideoCompressionType::type const value) noexcept
{
    return videoCompressionType.FromGeneratedEnum(value);
}

Generated::AudioCompressionType::type ToGeneratedEnum(Domain::Essences::AudioCompressionType const value) noexcept
{
    return audioCompressionType.ToGeneratedEnum(value);
}

Domain::Essences::AudioCompressionType FromGeneratedEnum(Generated::AudioCompressionType::type const value) noexcept
{
    return audioCompressionType.FromGeneratedEnum(value);
}

Generated::VideoCompressionInfo::type ToGeneratedEnum(Domain::Essences::VideoCompressionInfo const value) noexcept
{
    return videoCompressionInfo.ToGeneratedEnum(value);
}

Domain::Essences::VideoCompressionInfo FromGeneratedEnum(Generated::VideoCompressionInfo::type const value) noexcept
{
    return videoCompressionInfo.FromGeneratedEnum(value);
}

Generated::AudioConfiguration::type ToGeneratedEnum(Domain::Essences::AudioConfiguration const value) noexcept
{
    return audioConfiguration.ToGeneratedEnum(value);
}

Domain::Essences::AudioConfiguration FromGeneratedEnum(Generated::AudioConfiguration::type const value) noexcept
{
    return audioConfiguration.FromGeneratedEnum(value);
}
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::EnumConverter
