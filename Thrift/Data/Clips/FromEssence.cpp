#include "Thrift/Data/Clips/FromEssence.h"

#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/Essences_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

ConversionResult EssenceToThriftConverter::To(Corvane::Data::Clips::Clip::Essence const& source,
                                              Generated::Essence& destination) const noexcept
{
    TALVO_FLAGGED(destination, type) = ToGeneratedEnum(source.Type());
    TALVO_FLAGGED(destination, recordingStatus) = ToGeneratedEnum(source.recordingStatus);
    TALVO_FLAGGED(destination, archiveStatus) = ToGeneratedEnum(source.archiveStatus);
    TALVO_FLAGGED(destination, metadata) = ToGeneratedEnum(source.Metadata());
    TALVO_FLAGGED(destination, blockSize) = ToGeneratedEnum(source.blockSize);
    TALVO_FLAGGED(destination, videoCompressionType) = ToGeneratedEnum(source.VideoCompressionType());
    TALVO_FLAGGED(destination, audioCompressionType) = ToGeneratedEnum(source.AudioCompressionType());
    TALVO_FLAGGED(destination, videoCompressionInfo) = ToGeneratedEnum(source.VideoCompressionInfo());
    TALVO_FLAGGED(destination, audioConfiguration) = ToGeneratedEnum(source.audioConfiguration);
    TALVO_FLAGGED(destination, videoCompressionRate) = source.videoCompressionRate;
    TALVO_FLAGGED(destination, audioCompressionRate) = source.audioCompressionRate;
    TALVO_FLAGGED(destination, horizontalFrameSize) = source.horizontalFrameSize;
    TALVO_FLAGGED(destination, verticalFrameSize) = source.verticalFrameSize;
    return Success();
}

ConversionResult EssenceToThriftConverter::To(Corvane::Data::Clips::Clip::Essence&& source,
                                              Generated::Essence& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
