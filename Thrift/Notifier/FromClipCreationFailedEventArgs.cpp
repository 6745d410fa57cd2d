#include "Thrift/Notifier/FromClipCreationFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCreationFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ClipEvents.h"
#include "Thrift/Notifier/CreationTexts.h"
#include "generated/ClipCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ClipCreationFailedEventArgsToThriftConverter::To(Notification::ClipCreationFailedEventArgs const& source,
                                                 Generated::ClipCreationFailedEventArgs& destination) const noexcept
{
    NestedRecords nested;
    auto& isset = destination.__isset;

    if (nested.SendCommand(source, destination.clipCommand)) isset.clipCommand = true;
    if (nested.SendClip(source.sourceClip, destination.sourceClip)) isset.sourceClip = true;
    if (nested.SendClip(source.newClip, destination.newClip)) isset.newClip = true;
    if (auto result = nested.Result(); !result.success) return result;
    TALVO_FLAGGED(destination, creationType) = Word(source.creationType);
    TALVO_FLAGGED(destination, networkType) = Word(source.networkType);
    // Unlike in other failed events, the internal result is not written: its field and flag are unchanged. Peers rely
    // on this.
    TALVO_FLAGGED(destination, result) = Data::OperationResultConverter::To(source.result);
    TALVO_FLAGGED(destination, databaseRevision) = source.databaseRevision;
    return Success();
}

ConversionResult
ClipCreationFailedEventArgsToThriftConverter::To(Notification::ClipCreationFailedEventArgs&& source,
                                                 Generated::ClipCreationFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
