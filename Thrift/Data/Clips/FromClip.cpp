#include "Thrift/Data/Clips/FromClip.h"

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/FromEssence.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/Clip_types.h"

#include <array>
#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using Corvane::Data::Clips::Essences::RecordingStatus;
using EnumConverter::ToGeneratedEnum;

namespace
{

void SendKeywords(std::array<Corvane::Data::FixedText<12>, 5> const& source,
                  std::vector<Generated::AsciiOrUtf16String>& destination)
{
    destination.resize(source.size());
    for (std::size_t i = 0; i < source.size(); ++i) SendSlot(source[i], destination[i]);
}

} // namespace

ConversionResult ClipToThriftConverter::To(Corvane::Data::Clips::Clip const& source,
                                           Generated::Clip& destination) const noexcept
{
    EssenceToThriftConverter const fromEssence;

    TALVO_FLAGGED(destination, umId) = UntilNul(source.umId);
    TALVO_FLAGGED(destination, sourceUmId) = UntilNul(source.sourceUmId);
    TALVO_FLAGGED(destination, fillAndKeyUmId) = UntilNul(source.fillAndKeyUmId);
    TALVO_FLAGGED(destination, materialId) = UntilNul(source.materialId);
    SendSlot(source.name, TALVO_FLAGGED(destination, name));
    SendSlot(source.varId, TALVO_FLAGGED(destination, varId));
    SendKeywords(source.keywords, TALVO_FLAGGED(destination, keywords));
    // Appended, unlike the keywords: user bits that the destination already holds stay in front.
    destination.userBits.insert(destination.userBits.end(), source.userBits.begin(), source.userBits.end());
    destination.__isset.userBits = true;
    TALVO_FLAGGED(destination, is3D) = source.is3D;
    TALVO_FLAGGED(destination, isDual) = source.isDual;
    TALVO_FLAGGED(destination, isTwinRec) = source.isTwinRec;
    TALVO_FLAGGED(destination, isLegacyTimecodeDrop) = source.isLegacyTimecodeDrop;
    TALVO_FLAGGED(destination, trainStatus) = ToGeneratedEnum(source.trainStatus);
    if (IsNonZero(source.sourceEngine)) TALVO_FLAGGED(destination, sourceEngine) = ToGeneratedEnum(source.sourceEngine);
    if (IsNonZero(source.uhdDivisionMode))
        TALVO_FLAGGED(destination, uhdDivisionMode) = ToGeneratedEnum(source.uhdDivisionMode);
    if (IsNonZero(source.hdrProfile)) TALVO_FLAGGED(destination, hdrProfile) = ToGeneratedEnum(source.hdrProfile);
    if (IsNonZero(source.alphaArchiveStatus))
        TALVO_FLAGGED(destination, alphaArchiveStatus) = ToGeneratedEnum(source.alphaArchiveStatus);
    TALVO_FLAGGED(destination, archiveStatus) = ToGeneratedEnum(source.archiveStatus);
    if (IsNonZero(source.fillAndKeyStatus))
        TALVO_FLAGGED(destination, fillAndKeyStatus) = ToGeneratedEnum(source.fillAndKeyStatus);
    TALVO_FLAGGED(destination, userProtect) = source.userProtect;
    if (IsNonZero(source.camera)) TALVO_FLAGGED(destination, camera) = ToGeneratedEnum(source.camera);
    if (IsNonZero(source.afdAspectRatio))
        TALVO_FLAGGED(destination, afdAspectRatio) = ToGeneratedEnum(source.afdAspectRatio);
    if (IsNonZero(source.codedFrameAspectRatio))
        TALVO_FLAGGED(destination, codedFrameAspectRatio) = ToGeneratedEnum(source.codedFrameAspectRatio);
    TALVO_FLAGGED(destination, videoFormat) = ToGeneratedEnum(source.videoFormat);
    TALVO_FLAGGED(destination, videoStandard) = ToGeneratedEnum(source.VideoStandard());
    TALVO_FLAGGED(destination, userTimecodeType) = ToGeneratedEnum(source.userTimecodeType);
    if (IsNonZero(source.primaryTimecode))
        TALVO_FLAGGED(destination, primaryTimecode) = ToGeneratedEnum(source.primaryTimecode);
    if (IsNonZero(source.rating)) TALVO_FLAGGED(destination, rating) = ToGeneratedEnum(source.rating);
    if (IsNonZero(source.preferentialCamera))
        TALVO_FLAGGED(destination, preferentialCamera) = ToGeneratedEnum(source.preferentialCamera);
    TALVO_FLAGGED(destination, inBoundField) = source.inBoundField;
    TALVO_FLAGGED(destination, shortInBoundField) = source.shortInBoundField;
    TALVO_FLAGGED(destination, shortOutBoundField) = source.shortOutBoundField;
    TALVO_FLAGGED(destination, outBoundField) = source.outBoundField;
    TALVO_FLAGGED(destination, legacyTimecodeOffset) = Widened(source.legacyTimecodeOffset);
    TALVO_FLAGGED(destination, kviIndex) = source.kviIndex;
    TALVO_FLAGGED(destination, userLock) = Widened(source.userLock);
    TALVO_FLAGGED(destination, thumbnailOffset) = Widened(source.thumbnailOffset);
    TALVO_FLAGGED(destination, sequence) = Widened(source.sequence);
    TALVO_FLAGGED(destination, machineSerial) = Widened(source.machineSerial);
    TALVO_FLAGGED(destination, nbAudioVideoChannels) = source.nbAudioVideoChannels;
    TALVO_FLAGGED(destination, dolbyMonoSignal) = source.dolbyMonoSignal;
    if (IsPresent(source.InBoundTodTimecode()))
        WriteTimeCode(source.InBoundTodTimecode(), TALVO_FLAGGED(destination, inBoundTodTimecode));
    if (IsPresent(source.InBoundUserTimecode()))
        WriteTimeCode(source.InBoundUserTimecode(), TALVO_FLAGGED(destination, inBoundUserTimecode));
    if (IsPresent(source.inBoundTimepoint))
        TALVO_FLAGGED(destination, inBoundTimepoint) = source.inBoundTimepoint.position;

    if (source.intraEssence.recordingStatus != RecordingStatus::NotPresent)
    {
        if (auto const result = fromEssence.To(source.intraEssence, destination.intraEssence); !result.success)
            return Nested(result);
        destination.__isset.intraEssence = true;
    }
    if (source.longGopEssence.recordingStatus != RecordingStatus::NotPresent)
    {
        if (auto const result = fromEssence.To(source.longGopEssence, destination.longGopEssence); !result.success)
            return Nested(result);
        destination.__isset.longGopEssence = true;
    }
    if (source.lowResEssence.recordingStatus != RecordingStatus::NotPresent)
    {
        if (auto const result = fromEssence.To(source.lowResEssence, destination.lowResEssence); !result.success)
            return Nested(result);
        destination.__isset.lowResEssence = true;
    }
    return Success();
}

ConversionResult ClipToThriftConverter::To(Corvane::Data::Clips::Clip&& source,
                                           Generated::Clip& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
