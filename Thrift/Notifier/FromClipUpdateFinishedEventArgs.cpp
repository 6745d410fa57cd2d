#include "Thrift/Notifier/FromClipUpdateFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipUpdateFinishedEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipUpdateFinishedEventArgsToThriftConverter::To(Notification::ClipUpdateFinishedEventArgs const& source,
                                                 Generated::ClipUpdateFinishedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.oldClip, destination.oldClip)) isset.oldClip = true;
    if (nested.SendClip(source.newClip, destination.newClip)) isset.newClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, endOfGrowingClipCreation) = source.endOfGrowingClipCreation;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipUpdateFinishedEventArgsToThriftConverter::To(Notification::ClipUpdateFinishedEventArgs&& source,
                                                 Generated::ClipUpdateFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
