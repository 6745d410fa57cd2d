#include "Thrift/Notifier/ToClipMoveStartedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"
#include "Thrift/Detail/ClipEvents.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipMoveEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipMoveStartedEventArgsConverter::To(Generated::ClipMoveStartedEventArgs const& source,
                                              Notification::ClipMoveEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.destClip)
        return Failure("Incomplete ClipMoveStartedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip destClip;
    NestedRecords nested;
    if (nested(source.sourceClip, sourceClip) && nested(source.destClip, destClip))
    {
        destination =
            EventWithPlaceholders<Notification::ClipMoveEventArgs>(source.databaseRevision, sourceClip, destClip);
        nested(source.clipCommand, destination);
    }
    return nested.Result();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
