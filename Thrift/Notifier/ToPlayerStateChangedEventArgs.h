#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct PlayerStateChangedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class PlayerStateChangedEventArgs;
} // namespace Generated

/// Applies the wire record `PlayerStateChangedEventArgs` to a domain `PlayerStateChangedEventArgs`: the channel's
/// identifier is built anew from its index and serial number, if both were sent; event flags that were not sent are 0;
/// what the conversion of the state reports is not looked at.
///
/// Failure: "PlayerStateChanged is empty" when neither both parts of the identifier nor event flags nor a state was
/// sent; the event flags of the destination are then 0.
///
/// Ends the process: what ends it in ThriftToPlayerStateConverter.
///
/// Lost on the way: the high word of the serial number.
class ThriftToPlayerStateChangedEventArgsConverter
    : public Converter<Generated::PlayerStateChangedEventArgs, Notification::PlayerStateChangedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::PlayerStateChangedEventArgs const& source,
                               Notification::PlayerStateChangedEventArgs& destination) const;

    ConversionResult To(Generated::PlayerStateChangedEventArgs const& source,
                        Notification::PlayerStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::PlayerStateChangedEventArgs&& source,
                        Notification::PlayerStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
