#include "Thrift/Notifier/ToClipCreationFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "Thrift/Notifier/CreationTexts.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipCreationFailedEventArgsConverter::ToOrThrow(Generated::ClipCreationFailedEventArgs const& source,
                                                        Notification::ClipCreationFailedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.newClip || !isset.creationType || !isset.networkType ||
        !isset.result)
        return Failure("Incomplete ClipCreationFailedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("newClip", source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipCreationFailedEventArgs>(
            source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source),
            sourceClip, newClip, CreationTypeOf(source.creationType), NetworkTypeOf(source.networkType));
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipCreationFailedEventArgsConverter::To(Generated::ClipCreationFailedEventArgs const& source,
                                                 Notification::ClipCreationFailedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipCreationFailedEventArgsConverter::To(Generated::ClipCreationFailedEventArgs&& source,
                                                 Notification::ClipCreationFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
