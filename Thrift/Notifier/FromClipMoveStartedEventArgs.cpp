#include "Thrift/Notifier/FromClipMoveStartedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipMoveStartedEventArgsToThriftConverter::To(Notification::ClipMoveEventArgs const& source,
                                              Generated::ClipMoveStartedEventArgs& destination) const noexcept
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
ClipMoveStartedEventArgsToThriftConverter::To(Notification::ClipMoveEventArgs&& source,
                                              Generated::ClipMoveStartedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
