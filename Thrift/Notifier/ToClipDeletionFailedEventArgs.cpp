#include "Thrift/Notifier/ToClipDeletionFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipDeletionFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipDeletionEventArgs_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToClipDeletionFailedEventArgsConverter::ToOrThrow(Generated::ClipDeletionFailedEventArgs const& source,
                                                        Notification::ClipDeletionFailedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.removedClip || !isset.result || !isset.essenceBitmap || !isset.fromUCode ||
        !isset.forceForPlaylist)
        return Failure("Incomplete ClipDeletionFailedEventArgs - missing fields");

    Corvane::Data::Clips::Clip removedClip;
    NestedRecords nested;
    if (nested.ReadClip("removedClip", source.removedClip, removedClip))
    {
        destination = EventWithPlaceholders<Notification::ClipDeletionFailedEventArgs>(
            source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source),
            removedClip, std::uint8_t{0}, std::uint8_t{0}, static_cast<std::uint8_t>(source.essenceBitmap),
            source.fromUCode, source.forceForPlaylist);
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult
ThriftToClipDeletionFailedEventArgsConverter::To(Generated::ClipDeletionFailedEventArgs const& source,
                                                 Notification::ClipDeletionFailedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipDeletionFailedEventArgsConverter::To(Generated::ClipDeletionFailedEventArgs&& source,
                                                 Notification::ClipDeletionFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
