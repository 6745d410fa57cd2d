#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Thrift/Detail/ClipEvents.h"
#include "Thrift/Detail/CreationTexts.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToClipCreationFinishedEventArgsConverter::To(
    Generated::ClipCreationFinishedEventArgs const& source,
    Notification::ClipCreationFinishedEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.newClip || !isset.creationType || !isset.networkType)
        return Failure("Incomplete ClipCreationFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested(source.sourceClip, sourceClip) && nested(source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipCreationFinishedEventArgs>(
            source.databaseRevision, sourceClip, newClip, CreationTypeOf(source.creationType),
            NetworkTypeOf(source.networkType));
        nested(source.clipCommand, destination);
    }
    return nested.Result();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
