#include "Thrift/Notifier/FromClipDeletionFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipDeletionFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipDeletionFailedEventArgsToThriftConverter::To(Notification::ClipDeletionFailedEventArgs const& source,
                                                 Generated::ClipDeletionFailedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.removedClip, destination.removedClip)) isset.removedClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, result) = Data::OperationResultConverter::To(source.result);
    TALVO_FLAGGED(destination, internalResult) = source.internalResult;
    TALVO_FLAGGED(destination, essenceBitmap) = source.essenceBitmap;
    TALVO_FLAGGED(destination, fromUCode) = source.fromUCode;
    TALVO_FLAGGED(destination, forceForPlaylist) = source.forceForPlaylist;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipDeletionFailedEventArgsToThriftConverter::To(Notification::ClipDeletionFailedEventArgs&& source,
                                                 Generated::ClipDeletionFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
