#include "Thrift/Notifier/FromMassClipDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipDeletionEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult MassClipDeletionFinishedEventArgsToThriftConverter::To(
    Notification::MassClipDeletionEventArgs const& source,
    Generated::MassClipDeletionFinishedEventArgs& destination) const noexcept
{
    NestedRecords nested;

    // The flag is set only after the block was converted, so a block that fails leaves all flags unchanged.
    if (!nested.SendCommand(source, destination.clipCommand)) return nested.Result();
    destination.__isset.clipCommand = true;
    TALVO_FLAGGED(destination, machineSerial) = Widened(source.machineSerial);
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult MassClipDeletionFinishedEventArgsToThriftConverter::To(
    Notification::MassClipDeletionEventArgs&& source,
    Generated::MassClipDeletionFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
