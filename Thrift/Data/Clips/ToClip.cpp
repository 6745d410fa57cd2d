#include "Thrift/Data/Clips/ToClip.h"

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/ToEssence.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/Clip_types.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using Corvane::Data::Clips::VideoStandard;
using EnumConverter::FromGeneratedEnum;

namespace
{

/// Slots beyond the end of a shorter list keep their contents; elements beyond the last slot are ignored.
void ReadKeywords(std::vector<Generated::AsciiOrUtf16String> const& source,
                  std::array<Corvane::Data::FixedText<12>, 5>& destination) noexcept
{
    auto const count = std::min(source.size(), destination.size());
    for (std::size_t i = 0; i < count; ++i) ReadSlot(source[i], destination[i]);
}

/// Bytes beyond the end of a shorter list keep their values; elements beyond the last byte are ignored.
void ReadUserBits(std::vector<std::int16_t> const& source, std::array<unsigned char, 8>& destination) noexcept
{
    auto const count = std::min(source.size(), destination.size());
    for (std::size_t i = 0; i < count; ++i) destination[i] = static_cast<unsigned char>(source[i]);
}

} // namespace

ConversionResult ThriftToClipConverter::ToOrThrow(Generated::Clip const& source,
                                                  Corvane::Data::Clips::Clip& destination) const
{
    ThriftToEssenceConverter const toEssence;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.umId)) AssignBounded(destination.umId, source.umId);
    if (seen(isset.sourceUmId)) AssignBounded(destination.sourceUmId, source.sourceUmId);
    if (seen(isset.fillAndKeyUmId)) AssignBounded(destination.fillAndKeyUmId, source.fillAndKeyUmId);
    if (seen(isset.materialId)) AssignBounded(destination.materialId, source.materialId);
    if (seen(isset.name)) ReadSlot(source.name, destination.name);
    if (seen(isset.varId)) ReadSlot(source.varId, destination.varId);
    if (seen(isset.keywords && !source.keywords.empty())) ReadKeywords(source.keywords, destination.keywords);
    if (seen(isset.userBits && !source.userBits.empty())) ReadUserBits(source.userBits, destination.userBits);
    if (seen(isset.is3D)) destination.is3D = source.is3D;
    if (seen(isset.isDual)) destination.isDual = source.isDual;
    if (seen(isset.isTwinRec)) destination.isTwinRec = source.isTwinRec;
    // Checks the destination's standard before the record's own is applied, so a new clip loses the flag even if the
    // record says Ntsc. Peers rely on this order.
    if (seen(isset.isLegacyTimecodeDrop) && destination.VideoStandard() == VideoStandard::Ntsc)
        destination.isLegacyTimecodeDrop = source.isLegacyTimecodeDrop;
    if (seen(isset.trainStatus)) destination.trainStatus = FromGeneratedEnum(source.trainStatus);
    if (seen(isset.sourceEngine)) destination.sourceEngine = FromGeneratedEnum(source.sourceEngine);
    if (seen(isset.uhdDivisionMode)) destination.uhdDivisionMode = FromGeneratedEnum(source.uhdDivisionMode);
    if (seen(isset.hdrProfile)) destination.hdrProfile = FromGeneratedEnum(source.hdrProfile);
    if (seen(isset.alphaArchiveStatus)) destination.alphaArchiveStatus = FromGeneratedEnum(source.alphaArchiveStatus);
    if (seen(isset.archiveStatus)) destination.archiveStatus = FromGeneratedEnum(source.archiveStatus);
    if (seen(isset.fillAndKeyStatus)) destination.fillAndKeyStatus = FromGeneratedEnum(source.fillAndKeyStatus);
    if (seen(isset.userProtect)) destination.userProtect = source.userProtect;
    if (seen(isset.camera)) destination.camera = FromGeneratedEnum(source.camera);
    if (seen(isset.afdAspectRatio)) destination.afdAspectRatio = FromGeneratedEnum(source.afdAspectRatio);
    if (seen(isset.codedFrameAspectRatio))
        destination.codedFrameAspectRatio = FromGeneratedEnum(source.codedFrameAspectRatio);
    if (seen(isset.videoFormat)) destination.videoFormat = FromGeneratedEnum(source.videoFormat);
    if (seen(isset.videoStandard)) destination.VideoStandard(FromGeneratedEnum(source.videoStandard));
    if (seen(isset.userTimecodeType)) destination.userTimecodeType = FromGeneratedEnum(source.userTimecodeType);
    if (seen(isset.primaryTimecode)) destination.primaryTimecode = FromGeneratedEnum(source.primaryTimecode);
    if (seen(isset.rating)) destination.rating = FromGeneratedEnum(source.rating);
    if (seen(isset.preferentialCamera)) destination.preferentialCamera = FromGeneratedEnum(source.preferentialCamera);
    if (seen(isset.inBoundField)) destination.inBoundField = source.inBoundField;
    if (seen(isset.shortInBoundField)) destination.shortInBoundField = source.shortInBoundField;
    if (seen(isset.shortOutBoundField)) destination.shortOutBoundField = source.shortOutBoundField;
    if (seen(isset.outBoundField)) destination.outBoundField = source.outBoundField;
    if (seen(isset.legacyTimecodeOffset)) destination.legacyTimecodeOffset = LowWord(source.legacyTimecodeOffset);
    if (seen(isset.kviIndex)) destination.kviIndex = source.kviIndex;
    if (seen(isset.userLock)) destination.userLock = LowWord(source.userLock);
    if (seen(isset.thumbnailOffset)) destination.thumbnailOffset = LowWord(source.thumbnailOffset);
    if (seen(isset.sequence)) destination.sequence = LowWord(source.sequence);
    if (seen(isset.machineSerial)) destination.machineSerial = LowWord(source.machineSerial);
    if (seen(isset.nbAudioVideoChannels)) destination.nbAudioVideoChannels = source.nbAudioVideoChannels;
    if (seen(isset.dolbyMonoSignal)) destination.dolbyMonoSignal = source.dolbyMonoSignal;

    // Both are read unguarded: an invalid text is a BadValue.
    if (seen(isset.inBoundTodTimecode) &&
        !destination.TrySetInBoundTodTimecode(ParseTimeCode("inBoundTodTimecode", source.inBoundTodTimecode)))
        return Failure("In Bound TOD Timecode Rate inconsistent with Clip Rate");
    if (seen(isset.inBoundUserTimecode) &&
        !destination.TrySetInBoundUserTimecode(ParseTimeCode("inBoundUserTimecode", source.inBoundUserTimecode)))
        return Failure("In Bound User Timecode Rate inconsistent with Clip Rate");
    if (seen(isset.inBoundTimepoint)) destination.inBoundTimepoint = {source.inBoundTimepoint};

    if (seen(isset.intraEssence))
    {
        if (auto const result = Read("intraEssence", toEssence, source.intraEssence, destination.intraEssence);
            !result.success)
            return Nested(result);
    }
    if (seen(isset.longGopEssence))
    {
        if (auto const result = Read("longGopEssence", toEssence, source.longGopEssence, destination.longGopEssence);
            !result.success)
            return Nested(result);
    }
    if (seen(isset.lowResEssence))
    {
        if (auto const result = Read("lowResEssence", toEssence, source.lowResEssence, destination.lowResEssence);
            !result.success)
            return Nested(result);
    }
    return seen.None() ? Failure("Clip is empty") : Success();
}

ConversionResult ThriftToClipConverter::To(Generated::Clip const& source,
                                           Corvane::Data::Clips::Clip& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToClipConverter::To(Generated::Clip&& source,
                                           Corvane::Data::Clips::Clip& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
