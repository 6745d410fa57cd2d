#include "Thrift/Notifier/FromClipUpdateFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipUpdateFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipUpdateFailedEventArgsToThriftConverter::To(Notification::ClipUpdateFailedEventArgs const& source,
                                               Generated::ClipUpdateFailedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.oldClip, destination.oldClip)) isset.oldClip = true;
    if (nested.SendClip(source.newClip, destination.newClip)) isset.newClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, result) = Data::OperationResultConverter::To(source.result);
    TALVO_FLAGGED(destination, internalResult) = source.internalResult;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipUpdateFailedEventArgsToThriftConverter::To(Notification::ClipUpdateFailedEventArgs&& source,
                                               Generated::ClipUpdateFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
