#include "Thrift/Notifier/ToClipCreationStartedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "Thrift/Notifier/CreationTexts.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipCreationStartedEventArgsConverter::ToOrThrow(Generated::ClipCreationStartedEventArgs const& source,
                                                         Notification::ClipCreationEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.newClip || !isset.creationType || !isset.networkType)
        return Failure("Incomplete ClipCreationStartedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("newClip", source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipCreationEventArgs>(
            source.databaseRevision, sourceClip, newClip, CreationTypeOf(source.creationType),
            NetworkTypeOf(source.networkType));
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipCreationStartedEventArgsConverter::To(Generated::ClipCreationStartedEventArgs const& source,
                                                  Notification::ClipCreationEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipCreationStartedEventArgsConverter::To(Generated::ClipCreationStartedEventArgs&& source,
                                                  Notification::ClipCreationEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
