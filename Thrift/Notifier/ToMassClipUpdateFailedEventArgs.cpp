#include "Thrift/Notifier/ToMassClipUpdateFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipUpdateFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToMassClipUpdateFailedEventArgsConverter::To(
    Generated::MassClipUpdateFailedEventArgs const& source,
    Notification::MassClipUpdateFailedEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.result || !isset.machineSerial)
        return Failure("Incomplete MassClipUpdateFailedEventArgs - missing fields");

    NestedRecords nested;
    destination = EventWithPlaceholders<Notification::MassClipUpdateFailedEventArgs>(
        source.databaseRevision, Data::OperationResultConverter::To(source.result), InternalResult(source),
        LowWord(source.machineSerial));
    nested.ReadCommand("clipCommand", source.clipCommand, destination);
    return nested.Result();
}

ConversionResult ThriftToMassClipUpdateFailedEventArgsConverter::To(
    Generated::MassClipUpdateFailedEventArgs&& source,
    Notification::MassClipUpdateFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
