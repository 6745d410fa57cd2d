#include "Thrift/Notifier/ToClipUpdateFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipUpdateFinishedEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipUpdateFinishedEventArgsConverter::ToOrThrow(Generated::ClipUpdateFinishedEventArgs const& source,
                                                        Notification::ClipUpdateFinishedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.endOfGrowingClipCreation || !isset.oldClip || !isset.newClip)
        return Failure("Incomplete ClipUpdateFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip oldClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested.ReadClip("oldClip", source.oldClip, oldClip) && nested.ReadClip("newClip", source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipUpdateFinishedEventArgs>(
            source.databaseRevision, source.endOfGrowingClipCreation, oldClip, newClip);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipUpdateFinishedEventArgsConverter::To(Generated::ClipUpdateFinishedEventArgs const& source,
                                                 Notification::ClipUpdateFinishedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipUpdateFinishedEventArgsConverter::To(Generated::ClipUpdateFinishedEventArgs&& source,
                                                 Notification::ClipUpdateFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
