#include "Thrift/Notifier/ToMassClipUpdateFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipUpdateEventArgs.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToMassClipUpdateFinishedEventArgsConverter::To(Generated::MassClipUpdateFinishedEventArgs const& source,
                                                     Notification::MassClipUpdateEventArgs& destination) const noexcept
{
    auto const& isset = source.__isset;
    if (!isset.clipCommand || !isset.machineSerial)
        return Failure("Incomplete MassClipUpdateFinishedEventArgs - missing fields");

    NestedRecords nested;
    destination = EventWithPlaceholders<Notification::MassClipUpdateEventArgs>(source.databaseRevision,
                                                                               LowWord(source.machineSerial));
    nested.ReadCommand("clipCommand", source.clipCommand, destination);
    return nested.Result();
}

ConversionResult
ThriftToMassClipUpdateFinishedEventArgsConverter::To(Generated::MassClipUpdateFinishedEventArgs&& source,
                                                     Notification::MassClipUpdateEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
