#include "Thrift/Notifier/ToMassClipDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipDeletionEventArgs.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToMassClipDeletionFinishedEventArgsConverter::To(
    Generated::MassClipDeletionFinishedEventArgs const& source,
    Notification::MassClipDeletionEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.machineSerial)
        return Failure("Incomplete MassClipDeletionFinishedEventArgs - missing fields");

    NestedRecords nested;
    destination = EventWithPlaceholders<Notification::MassClipDeletionEventArgs>(source.databaseRevision,
                                                                                 LowWord(source.machineSerial));
    nested.ReadCommand("clipCommand", source.clipCommand, destination);
    return nested.Result();
}

ConversionResult ThriftToMassClipDeletionFinishedEventArgsConverter::To(
    Generated::MassClipDeletionFinishedEventArgs&& source,
    Notification::MassClipDeletionEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
