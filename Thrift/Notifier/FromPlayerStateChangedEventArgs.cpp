#include "Thrift/Notifier/FromPlayerStateChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/PlayerStateChangedEventArgs.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/PlayerStateChangedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
PlayerStateChangedEventArgsToThriftConverter::To(Notification::PlayerStateChangedEventArgs const& source,
                                                 Generated::PlayerStateChangedEventArgs& destination) const noexcept
{
    Data::Channels::PlayerStateToThriftConverter const fromState;

    TALVO_FLAGGED(destination, channelIndex) = source.channelGuid.ChannelIndex();
    TALVO_FLAGGED(destination, channelSerial) = Widened(source.channelGuid.MachineSerial());
    if (source.eventFlags != 0) TALVO_FLAGGED(destination, eventFlags) = source.eventFlags;
    if (auto const result = fromState.To(source.state, destination.status); !result.success) return Nested(result);
    destination.__isset.status = true;
    return Success();
}

ConversionResult
PlayerStateChangedEventArgsToThriftConverter::To(Notification::PlayerStateChangedEventArgs&& source,
                                                 Generated::PlayerStateChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
