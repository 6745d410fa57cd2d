#include "Thrift/Notifier/FromRecorderStateChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/RecorderStateChangedEventArgs.h"
#include "Thrift/Data/Channels/FromRecorderState.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/RecorderStateChangedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
RecorderStateChangedEventArgsToThriftConverter::To(Notification::RecorderStateChangedEventArgs const& source,
                                                   Generated::RecorderStateChangedEventArgs& destination) const noexcept
{
    Data::Channels::RecorderStateToThriftConverter const fromState;

    TALVO_FLAGGED(destination, channelIndex) = source.channelGuid.ChannelIndex();
    TALVO_FLAGGED(destination, channelSerial) = Widened(source.channelGuid.MachineSerial());
    if (source.eventFlags != 0) TALVO_FLAGGED(destination, eventFlags) = source.eventFlags;
    if (auto const result = fromState.To(source.state, destination.status); !result.success) return Nested(result);
    destination.__isset.status = true;
    return Success();
}

ConversionResult
RecorderStateChangedEventArgsToThriftConverter::To(Notification::RecorderStateChangedEventArgs&& source,
                                                   Generated::RecorderStateChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
