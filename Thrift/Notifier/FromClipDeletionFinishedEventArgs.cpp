#include "Thrift/Notifier/FromClipDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipDeletionFinishedEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipDeletionFinishedEventArgsToThriftConverter::To(Notification::ClipDeletionFinishedEventArgs const& source,
                                                   Generated::ClipDeletionFinishedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.removedClip, destination.removedClip)) isset.removedClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipDeletionFinishedEventArgsToThriftConverter::To(Notification::ClipDeletionFinishedEventArgs&& source,
                                                   Generated::ClipDeletionFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
