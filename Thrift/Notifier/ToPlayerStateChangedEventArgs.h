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
/// identifier is rebuilt from its index and serial number if both were sent; event flags that were not sent are 0; the
/// result of the state's conversion is ignored.
///
/// Failure: "PlayerStateChanged is empty" when no event flags, no state and not both parts of the identifier were sent;
/// the event flags of the destination are then 0.
///
/// Ends the process: anything that ends it in ThriftToPlayerStateConverter.
///
/// Lost: the high word of the serial number.
class ThriftToPlayerStateChangedEventArgsConverter
    : public Converter<Generated::PlayerStateChangedEventArgs, Notification::PlayerStateChangedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::PlayerStateChangedEventArgs const& source,
                               Notification::PlayerStateChangedEventArgs& destination) const;

    ConversionResult To(Generated::PlayerStateChangedEventArgs const& source,
                        Notification::PlayerStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::PlayerStateChangedEventArgs&& source,
                        Notification::PlayerStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
