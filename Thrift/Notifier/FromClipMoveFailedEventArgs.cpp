#include "Thrift/Notifier/FromClipMoveFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipMoveFailedEventArgsToThriftConverter::To(Notification::ClipMoveFailedEventArgs const& source,
                                             Generated::ClipMoveFailedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.sourceClip, destination.sourceClip)) isset.sourceClip = true;
    if (nested.SendClip(source.destClip, destination.destClip)) isset.destClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, result) = Data::OperationResultConverter::To(source.result);
    TALVO_FLAGGED(destination, internalResult) = source.internalResult;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipMoveFailedEventArgsToThriftConverter::To(Notification::ClipMoveFailedEventArgs&& source,
                                             Generated::ClipMoveFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
