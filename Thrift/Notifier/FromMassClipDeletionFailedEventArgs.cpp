#include "Thrift/Notifier/FromMassClipDeletionFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/MassClipDeletionFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "generated/MassClipDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult MassClipDeletionFailedEventArgsToThriftConverter::To(
    Notification::MassClipDeletionFailedEventArgs const& source,
    Generated::MassClipDeletionFailedEventArgs& destination) const noexcept
{
    NestedRecords nested;

    // The flag is set only after the block was converted, so a block that fails leaves all flags unchanged.
    if (!nested.SendCommand(source, destination.clipCommand)) return nested.Result();
    destination.__isset.clipCommand = true;
    TALVO_FLAGGED(destination, machineSerial) = Widened(source.machineSerial);
    TALVO_FLAGGED(destination, result) = Data::OperationResultConverter::To(source.result);
    TALVO_FLAGGED(destination, internalResult) = source.internalResult;
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult MassClipDeletionFailedEventArgsToThriftConverter::To(
    Notification::MassClipDeletionFailedEventArgs&& source,
    Generated::MassClipDeletionFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
