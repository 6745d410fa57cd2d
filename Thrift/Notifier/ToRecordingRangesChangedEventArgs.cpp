#include "Thrift/Notifier/ToRecordingRangesChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/RecordingRangesChangedEventArgs.h"
#include "Thrift/Data/Clips/ToRecordingRange.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/RecordingRangesChangedEA_types.h"

#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToRecordingRangesChangedEventArgsConverter::To(
    Generated::RecordingRangesChangedEventArgs const& source,
    Notification::RecordingRangesChangedEventArgs& destination) const noexcept
{
    Data::Clips::ThriftToRecordingRangeConverter const toRange;
    auto const& isset = source.__isset;
    SeenFields seen;

    Corvane::Data::Channels::Guid recorderId;
    if (seen(isset.recorderId)) ReadGuid(source.recorderId, recorderId);
    std::vector<Corvane::Data::Clips::RecordingRange> recordingRanges;
    if (seen(isset.recordingRanges)) AppendAll("recordingRanges", toRange, source.recordingRanges, recordingRanges);

    // The destination is replaced even if no flag is set: after the failure it is empty, not unchanged.
    destination.recorderId = recorderId;
    destination.recordingRanges = std::move(recordingRanges);
    destination.isInBoundMoving = source.isInBoundMoving;
    destination.isOutBoundMoving = source.isOutBoundMoving;
    return seen.None() ? Failure("RecordingRangesChanged is empty") : Success();
}

ConversionResult ThriftToRecordingRangesChangedEventArgsConverter::To(
    Generated::RecordingRangesChangedEventArgs&& source,
    Notification::RecordingRangesChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
