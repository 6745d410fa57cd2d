#include "Thrift/Data/Clips/ToEssence.h"

#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/Essences_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using EnumConverter::FromGeneratedEnum;

ConversionResult ThriftToEssenceConverter::To(Generated::Essence const& source,
                                              Corvane::Data::Clips::Clip::Essence& destination) const noexcept
{
    auto const& isset = source.__isset;
    SeenFields seen;

    // A type resets the destination; without one the other fields are applied to its current state.
    if (seen(isset.type)) destination.Clear(FromGeneratedEnum(source.type));
    if (seen(isset.recordingStatus)) destination.recordingStatus = FromGeneratedEnum(source.recordingStatus);
    if (seen(isset.archiveStatus)) destination.archiveStatus = FromGeneratedEnum(source.archiveStatus);
    if (seen(isset.metadata)) destination.Metadata(FromGeneratedEnum(source.metadata));
    if (seen(isset.blockSize)) destination.blockSize = FromGeneratedEnum(source.blockSize);
    if (seen(isset.videoCompressionType))
        destination.VideoCompressionType(FromGeneratedEnum(source.videoCompressionType));
    if (seen(isset.audioCompressionType))
        destination.AudioCompressionType(FromGeneratedEnum(source.audioCompressionType));
    if (seen(isset.videoCompressionInfo))
        destination.VideoCompressionInfo(FromGeneratedEnum(source.videoCompressionInfo));
    if (seen(isset.audioConfiguration)) destination.audioConfiguration = FromGeneratedEnum(source.audioConfiguration);
    if (seen(isset.videoCompressionRate)) destination.videoCompressionRate = source.videoCompressionRate;
    if (seen(isset.audioCompressionRate)) destination.audioCompressionRate = source.audioCompressionRate;
    if (seen(isset.horizontalFrameSize)) destination.horizontalFrameSize = source.horizontalFrameSize;
    if (seen(isset.verticalFrameSize)) destination.verticalFrameSize = source.verticalFrameSize;

    return seen.None() ? Failure("Essence is empty") : Success();
}

ConversionResult ThriftToEssenceConverter::To(Generated::Essence&& source,
                                              Corvane::Data::Clips::Clip::Essence& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
