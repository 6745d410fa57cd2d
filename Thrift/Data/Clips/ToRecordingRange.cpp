#include "Thrift/Data/Clips/ToRecordingRange.h"

#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/RecordingRange_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;

ConversionResult ThriftToRecordingRangeConverter::To(Generated::RecordingRange const& source,
                                                     Corvane::Data::Clips::RecordingRange& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.inBoundTimepoint || !isset.outBoundTimepoint || !isset.inBoundTimecode || !isset.outBoundTimecode)
        return Failure("RecordingRange is empty");

    auto const inTimecode = ReadTimeCode(source.inBoundTimecode);
    auto const outTimecode = ReadTimeCode(source.outBoundTimecode);
    if (!inTimecode || !outTimecode) return Failure("Invalid TimeCode format");

    destination.rangeInTimePoint = {source.inBoundTimepoint};
    destination.rangeOutTimePoint = {source.outBoundTimepoint};
    destination.rangeInTimecode = *inTimecode;
    destination.rangeOutTimecode = *outTimecode;
    return Success();
}

ConversionResult ThriftToRecordingRangeConverter::To(Generated::RecordingRange&& source,
                                                     Corvane::Data::Clips::RecordingRange& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
