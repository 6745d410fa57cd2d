#include "Thrift/Notifier/ToMassClipDeletionFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipDeletionFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToMassClipDeletionFailedEventArgsConverter::To(
    Generated::MassClipDeletionFailedEventArgs const& source,
    Notification::MassClipDeletionFailedEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.result || !isset.machineSerial)
        return Failure("Incomplete MassClipDeletionFailedEventArgs - missing fields");

    NestedRecords nested;
    destination = EventWithPlaceholders<Notification::MassClipDeletionFailedEventArgs>(
        source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source),
        LowWord(source.machineSerial));
    nested.ReadCommand("clipCommand", source.clipCommand, destination);
    return nested.Result();
}

ConversionResult ThriftToMassClipDeletionFailedEventArgsConverter::To(
    Generated::MassClipDeletionFailedEventArgs&& source,
    Notification::MassClipDeletionFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
