#include "Thrift/Data/Clips/FromRecordingRange.h"

#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/RecordingRange_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;

ConversionResult RecordingRangeToThriftConverter::To(Corvane::Data::Clips::RecordingRange const& source,
                                                     Generated::RecordingRange& destination) const noexcept
{
    // Empty bounds are written too, unlike those of a clip.
    TALVO_FLAGGED(destination, inBoundTimepoint) = source.rangeInTimePoint.position;
    TALVO_FLAGGED(destination, outBoundTimepoint) = source.rangeOutTimePoint.position;
    WriteTimeCode(source.rangeInTimecode, TALVO_FLAGGED(destination, inBoundTimecode));
    WriteTimeCode(source.rangeOutTimecode, TALVO_FLAGGED(destination, outBoundTimecode));
    return Success();
}

ConversionResult RecordingRangeToThriftConverter::To(Corvane::Data::Clips::RecordingRange&& source,
                                                     Generated::RecordingRange& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
