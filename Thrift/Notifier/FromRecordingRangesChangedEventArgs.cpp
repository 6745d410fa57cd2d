#include "Thrift/Notifier/FromRecordingRangesChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/RecordingRangesChangedEventArgs.h"
#include "Thrift/Data/Clips/FromRecordingRange.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/RecordingRangesChangedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult RecordingRangesChangedEventArgsToThriftConverter::To(
    Notification::RecordingRangesChangedEventArgs const& source,
    Generated::RecordingRangesChangedEventArgs& destination) const noexcept
{
    Data::Clips::RecordingRangeToThriftConverter const fromRange;

    SendGuid(source.recorderId, TALVO_FLAGGED(destination, recorderId));
    // Appended: ranges that the destination already holds stay in front.
    AppendAll("recordingRanges", fromRange, source.recordingRanges, destination.recordingRanges);
    TALVO_FLAGGED(destination, isInBoundMoving) = source.isInBoundMoving;
    TALVO_FLAGGED(destination, isOutBoundMoving) = source.isOutBoundMoving;
    destination.__isset.recordingRanges = !destination.recordingRanges.empty();
    return Success();
}

ConversionResult RecordingRangesChangedEventArgsToThriftConverter::To(
    Notification::RecordingRangesChangedEventArgs&& source,
    Generated::RecordingRangesChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
