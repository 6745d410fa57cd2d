#include "Thrift/Notifier/ToPlayerStateChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/PlayerStateChangedEventArgs.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Widths.h"
#include "generated/PlayerStateChangedEA_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;
using Corvane::Data::Channels::Guid;

ConversionResult
ThriftToPlayerStateChangedEventArgsConverter::ToOrThrow(Generated::PlayerStateChangedEventArgs const& source,
                                                        Notification::PlayerStateChangedEventArgs& destination) const
{
    Data::Channels::ThriftToPlayerStateConverter const toState;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.channelIndex && isset.channelSerial))
        destination.channelGuid =
            Guid(Guid::Type::ChannelGuidTypePlayer, source.channelIndex, LowWord(source.channelSerial));
    destination.eventFlags = seen(isset.eventFlags) ? source.eventFlags : 0;
    // The result of the state is ignored, although the other direction returns it.
    if (seen(isset.status)) std::ignore = Read("status", toState, source.status, destination.state);
    return seen.None() ? Failure("PlayerStateChanged is empty") : Success();
}

ConversionResult
ThriftToPlayerStateChangedEventArgsConverter::To(Generated::PlayerStateChangedEventArgs const& source,
                                                 Notification::PlayerStateChangedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToPlayerStateChangedEventArgsConverter::To(Generated::PlayerStateChangedEventArgs&& source,
                                                 Notification::PlayerStateChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
