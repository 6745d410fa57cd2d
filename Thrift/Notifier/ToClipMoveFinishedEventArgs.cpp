#include "Thrift/Notifier/ToClipMoveFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveFinishedEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipMoveFinishedEventArgsConverter::ToOrThrow(Generated::ClipMoveFinishedEventArgs const& source,
                                                      Notification::ClipMoveFinishedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.destClip)
        return Failure("Incomplete ClipMoveFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip destClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("destClip", source.destClip, destClip))
    {
        destination = EventWithPlaceholders<Notification::ClipMoveFinishedEventArgs>(source.databaseRevision,
                                                                                     sourceClip, destClip);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipMoveFinishedEventArgsConverter::To(Generated::ClipMoveFinishedEventArgs const& source,
                                               Notification::ClipMoveFinishedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipMoveFinishedEventArgsConverter::To(Generated::ClipMoveFinishedEventArgs&& source,
                                               Notification::ClipMoveFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
