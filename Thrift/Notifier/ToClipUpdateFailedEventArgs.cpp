#include "Thrift/Notifier/ToClipUpdateFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipUpdateFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipUpdateFailedEventArgsConverter::ToOrThrow(Generated::ClipUpdateFailedEventArgs const& source,
                                                      Notification::ClipUpdateFailedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.result || !isset.oldClip || !isset.newClip)
        return Failure("Incomplete ClipUpdateFailedEventArgs - missing fields");

    Corvane::Data::Clips::Clip oldClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested.ReadClip("oldClip", source.oldClip, oldClip) && nested.ReadClip("newClip", source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipUpdateFailedEventArgs>(
            source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source), oldClip,
            newClip);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipUpdateFailedEventArgsConverter::To(Generated::ClipUpdateFailedEventArgs const& source,
                                               Notification::ClipUpdateFailedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipUpdateFailedEventArgsConverter::To(Generated::ClipUpdateFailedEventArgs&& source,
                                               Notification::ClipUpdateFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
