#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "TimePoints/TalvoTimeCodeParser.h"

#include <algorithm>
#include <string_view>

namespace Talvo::Tests
{

inline TimePoints::TimeCode ParsedTimeCode(char const* const text)
{
    return TimePoints::TalvoTimeCodeParser().Parse(text);
}

template<typename Text>
void SetText(Text& slot, std::string_view const text)
{
    slot = {};
    std::copy(text.begin(), text.end(), slot.begin());
}

/// Returns an essence in which no field has the value that Clear() sets.
inline Corvane::Data::Clips::Clip::Essence FullEssence(Corvane::Data::Clips::Essences::Type const type)
{
    using namespace Corvane::Data::Clips::Essences;
    Corvane::Data::Clips::Clip::Essence essence;
    essence.Clear(type);
    essence.recordingStatus = RecordingStatus::OnDisk;
    essence.archiveStatus = ArchiveStatus::Stored;
    essence.Metadata(Metadata::IntraEncodingBitLength10);
    essence.blockSize = BlockSize::MB8;
    essence.VideoCompressionType(VideoCompressionType::IntraXAvc480);
    essence.AudioCompressionType(type == Type::LowRes ? AudioCompressionType::LongGopNone
                                                      : AudioCompressionType::LowResMpeg1Layer2);
    essence.VideoCompressionInfo(VideoCompressionInfo::IntraProResLt);
    essence.audioConfiguration = AudioConfiguration::ThirtyTwoMonos;
    essence.videoCompressionRate = 100;
    essence.audioCompressionRate = -3;
    essence.horizontalFrameSize = 1920;
    essence.verticalFrameSize = 1080;
    return essence;
}

/// Returns a clip in which no written field has its default and every text fills its slot without a zero.
inline Corvane::Data::Clips::Clip FullClip()
{
    using namespace Corvane::Data::Clips;
    Clip clip;
    SetText(clip.umId, "UMID0001");
    SetText(clip.sourceUmId, "UMID0002");
    SetText(clip.fillAndKeyUmId, "UMID0003");
    SetText(clip.materialId, "MATERIAL");
    clip.name.isUtf16 = true;
    SetText(clip.name.payload, "A name of 24 bytes, full");
    SetText(clip.varId.payload, "A variable identifier, 32 bytes.");
    SetText(clip.keywords[0].payload, "keyword one.");
    SetText(clip.keywords[4].payload, "keyword five");
    clip.keywords[4].isUtf16 = true;
    clip.userBits = {0, 1, 127, 128, 200, 254, 255, 7};
    clip.is3D = true;
    clip.isDual = true;
    clip.isTwinRec = true;
    clip.isLegacyTimecodeDrop = true;
    clip.trainStatus = TrainStatus::ActiveTrain;
    clip.sourceEngine = SourceEngine::Derush;
    clip.uhdDivisionMode = UhdDivisionMode::SampleInterleave;
    clip.hdrProfile = HdrProfile::VLog;
    clip.alphaArchiveStatus = AlphaArchiveStatus::ImportantAndStored;
    clip.archiveStatus = ArchiveStatus::Stored;
    clip.fillAndKeyStatus = FillAndKeyStatus::Key;
    clip.userProtect = -5;
    clip.camera = Camera::X;
    clip.afdAspectRatio = AfdAspectRatio::LetterBox;
    clip.codedFrameAspectRatio = CodedFrameAspectRatio::SixteenNinths;
    clip.videoFormat = VideoFormat::Uhd4k;
    clip.VideoStandard(VideoStandard::Ntsc);
    clip.userTimecodeType = TimecodeType::AtcLtc;
    clip.primaryTimecode = PrimaryTimecode::User;
    clip.rating = Rating::Best;
    clip.preferentialCamera = PreferentialCamera::Secondary;
    clip.inBoundField = 0x100000001;
    clip.shortInBoundField = -2;
    clip.shortOutBoundField = 3;
    clip.outBoundField = 0x7FFFFFFFFFFFFFFF;
    clip.legacyTimecodeOffset = 0xFFFFFFFF;
    clip.kviIndex = -7;
    clip.userLock = 0x80000000;
    clip.thumbnailOffset = 11;
    clip.sequence = 12;
    clip.machineSerial = 0xFFFFFFFE;
    clip.nbAudioVideoChannels = 16;
    clip.dolbyMonoSignal = 2;
    clip.TrySetInBoundTodTimecode(ParsedTimeCode("2024-02-29T23:59:00;02@30"));
    clip.TrySetInBoundUserTimecode(ParsedTimeCode("2000-01-01T10:11:12:47@60"));
    clip.inBoundTimepoint = {-1};
    clip.intraEssence = FullEssence(Essences::Type::Intra);
    clip.longGopEssence = FullEssence(Essences::Type::LongGop);
    clip.lowResEssence = FullEssence(Essences::Type::LowRes);
    return clip;
}

/// Returns the destination for reading FullClip(). Only a clip that is already Ntsc accepts `isLegacyTimecodeDrop`.
inline Corvane::Data::Clips::Clip NtscClip()
{
    Corvane::Data::Clips::Clip clip;
    clip.VideoStandard(Corvane::Data::Clips::VideoStandard::Ntsc);
    return clip;
}

} // namespace Talvo::Tests
