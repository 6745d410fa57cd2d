#include "Thrift/Notifier/ToClipDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipDeletionFinishedEventArgs.h"
#include "Thrift/Detail/ClipEvents.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipDeletionEventArgs_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToClipDeletionFinishedEventArgsConverter::To(
    Generated::ClipDeletionFinishedEventArgs const& source,
    Notification::ClipDeletionFinishedEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.removedClip)
        return Failure("Incomplete ClipDeletionFinishedEventArgs - missing fields");

    Corvane::Data::Clips::Clip removedClip;
    NestedRecords nested;
    if (nested(source.removedClip, removedClip))
    {
        destination = EventWithPlaceholders<Notification::ClipDeletionFinishedEventArgs>(
            source.databaseRevision, removedClip, std::uint8_t{0}, std::uint8_t{0});
        nested(source.clipCommand, destination);
    }
    return nested.Result();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
