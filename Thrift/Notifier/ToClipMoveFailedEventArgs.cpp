#include "Thrift/Notifier/ToClipMoveFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipMoveFailedEventArgsConverter::ToOrThrow(Generated::ClipMoveFailedEventArgs const& source,
                                                    Notification::ClipMoveFailedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.result || !isset.sourceClip || !isset.destClip)
        return Failure("Incomplete ClipMoveFailedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip destClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("destClip", source.destClip, destClip))
    {
        destination = EventWithPlaceholders<Notification::ClipMoveFailedEventArgs>(
            source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source),
            sourceClip, destClip);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipMoveFailedEventArgsConverter::To(Generated::ClipMoveFailedEventArgs const& source,
                                             Notification::ClipMoveFailedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipMoveFailedEventArgsConverter::To(Generated::ClipMoveFailedEventArgs&& source,
                                             Notification::ClipMoveFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
