#include "Thrift/Data/Clips/FromTrain.h"

#include "Domain/CorvaneData/Clips/Train.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/FromRecordingRange.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/Train_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;

ConversionResult TrainToThriftConverter::To(Corvane::Data::Clips::Train const& source,
                                            Generated::Train& destination) const noexcept
{
    ClipToThriftConverter const fromClip;
    RecordingRangeToThriftConverter const fromRange;

    if (source.trainClip != nullptr)
    {
        if (auto const result = fromClip.To(*source.trainClip, destination.trainData); !result.success)
            return Nested(result);
    }
    destination.__isset.trainData = source.trainClip != nullptr;

    // Appended: ranges that the destination already holds stay in front. The results of the ranges are ignored.
    AppendAll("recordingRanges", fromRange, source.trainRanges, destination.recordingRanges);
    destination.__isset.recordingRanges = !destination.recordingRanges.empty();

    TALVO_FLAGGED(destination, isInMoving) = source.isInMoving;
    TALVO_FLAGGED(destination, isOutMoving) = source.isOutMoving;
    if (IsPresent(source.lastKnownTimeCode))
        WriteTimeCode(source.lastKnownTimeCode, TALVO_FLAGGED(destination, lastKnownTimeCode));
    return Success();
}

ConversionResult TrainToThriftConverter::To(Corvane::Data::Clips::Train&& source,
                                            Generated::Train& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
