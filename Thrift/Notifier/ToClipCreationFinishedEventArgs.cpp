#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "Thrift/Notifier/CreationTexts.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToClipCreationFinishedEventArgsConverter::ToOrThrow(
    Generated::ClipCreationFinishedEventArgs const& source,
    Notification::ClipCreationFinishedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.sourceClip || !isset.newClip || !isset.creationType || !isset.networkType)
        return Failure("Incomplete ClipCreationFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip sourceClip;
    Corvane::Data::Clips::Clip newClip;
    NestedRecords nested;
    if (nested.ReadClip("sourceClip", source.sourceClip, sourceClip) &&
        nested.ReadClip("newClip", source.newClip, newClip))
    {
        destination = EventWithPlaceholders<Notification::ClipCreationFinishedEventArgs>(
            source.databaseRevision, sourceClip, newClip, CreationTypeOf(source.creationType),
            NetworkTypeOf(source.networkType));
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult ThriftToClipCreationFinishedEventArgsConverter::To(
    Generated::ClipCreationFinishedEventArgs const& source,
    Notification::ClipCreationFinishedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToClipCreationFinishedEventArgsConverter::To(
    Generated::ClipCreationFinishedEventArgs&& source,
    Notification::ClipCreationFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
