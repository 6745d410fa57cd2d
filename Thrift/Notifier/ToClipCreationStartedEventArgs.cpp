#include "Thrift/Notifier/ToClipCreationStartedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"
#include "Thrift/Detail/ClipEvents.h"
#include "Thrift/Detail/CreationTexts.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipCreationStartedEventArgsConverter::To(Generated::ClipCreationStartedEventArgs const& source,
                                                  Notification::ClipCreationEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.newClip || !isset.creationType || !isset.networkType)
        return Failure("Incomplete ClipCreationStartedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested(source.sourceClip, sourceClip) && nested(source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipCreationEventArgs>(
            source.databaseRevision, sourceClip, newClip, CreationTypeOf(source.creationType),
            NetworkTypeOf(source.networkType));
        nested(source.clipCommand, destination);
    }
    return nested.Result();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
