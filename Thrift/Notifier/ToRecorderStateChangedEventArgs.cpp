#include "Thrift/Notifier/ToRecorderStateChangedEventArgs.h"

#include "Domain/CorvaneData/Notification/RecorderStateChangedEventArgs.h"
#include "Thrift/Data/Channels/ToRecorderState.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Widths.h"
#include "generated/RecorderStateChangedEA_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;
using Corvane::Data::Channels::Guid;

ConversionResult ThriftToRecorderStateChangedEventArgsConverter::ToOrThrow(
    Generated::RecorderStateChangedEventArgs const& source,
    Notification::RecorderStateChangedEventArgs& destination) const
{
    Data::Channels::ThriftToRecorderStateConverter const toState;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.channelIndex && isset.channelSerial))
        destination.channelGuid =
            Guid(Guid::Type::ChannelGuidTypeRecorder, source.channelIndex, LowWord(source.channelSerial));
    destination.eventFlags = seen(isset.eventFlags) ? source.eventFlags : 0;
    // The result of the state is ignored, although the other direction returns it.
    if (seen(isset.status)) std::ignore = Read("status", toState, source.status, destination.state);
    return seen.None() ? Failure("RecorderStateChanged is empty") : Success();
}

ConversionResult ThriftToRecorderStateChangedEventArgsConverter::To(
    Generated::RecorderStateChangedEventArgs const& source,
    Notification::RecorderStateChangedEventArgs& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToRecorderStateChangedEventArgsConverter::To(
    Generated::RecorderStateChangedEventArgs&& source,
    Notification::RecorderStateChangedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
