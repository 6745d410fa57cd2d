#include "Thrift/Notifier/FromClipMoveFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveFinishedEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipMoveFinishedEventArgsToThriftConverter::To(Notification::ClipMoveFinishedEventArgs const& source,
                                               Generated::ClipMoveFinishedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.sourceClip, destination.sourceClip)) isset.sourceClip = true;
    if (nested.SendClip(source.destClip, destination.destClip)) isset.destClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipMoveFinishedEventArgsToThriftConverter::To(Notification::ClipMoveFinishedEventArgs&& source,
                                               Generated::ClipMoveFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
