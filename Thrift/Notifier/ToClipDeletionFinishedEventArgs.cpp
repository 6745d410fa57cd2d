#include "Thrift/Notifier/ToClipDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipDeletionFinishedEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/ClipDeletionEventArgs_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToClipDeletionFinishedEventArgsConverter::ToOrThrow(
    Generated::ClipDeletionFinishedEventArgs const& source,
    Notification::ClipDeletionFinishedEventArgs& destination) const
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.removedClip)
        return Failure("Incomplete ClipDeletionFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip removedClip;
    NestedRecords nested;
    if (nested.ReadClip("removedClip", source.removedClip, removedClip))
    {
        destination = EventWithPlaceholders<Notification::ClipDeletionFinishedEventArgs>(
            source.databaseRevision, removedClip, std::uint8_t{0}, std::uint8_t{0});
        nested.ReadCommand("clipCommand", source.clipCommand, destination);
    }
    return nested.Result();
}

ConversionResult ThriftToClipDeletionFinishedEventArgsConverter::To(
    Generated::ClipDeletionFinishedEventArgs const& source,
    Notification::ClipDeletionFinishedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToClipDeletionFinishedEventArgsConverter::To(
    Generated::ClipDeletionFinishedEventArgs&& source,
    Notification::ClipDeletionFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
