#include "Thrift/Notifier/ToClipMoveStartedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipMoveStartedEventArgsConverter::ToOrThrow(Generated::ClipMoveStartedEventArgs const& source,
                                                     Notification::ClipMoveEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.destClip)
        return Failure("Incomplete ClipMoveStartedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip destClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("destClip", source.destClip, destClip))
    {
        destination =
            EventWithPlaceholders<Notification::ClipMoveEventArgs>(source.databaseRevision, sourceClip, destClip);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipMoveStartedEventArgsConverter::To(Generated::ClipMoveStartedEventArgs const& source,
                                              Notification::ClipMoveEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipMoveStartedEventArgsConverter::To(Generated::ClipMoveStartedEventArgs&& source,
                                              Notification::ClipMoveEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
