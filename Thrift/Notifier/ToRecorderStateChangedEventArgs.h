#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct RecorderStateChangedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class RecorderStateChangedEventArgs;
} // namespace Generated

/// Applies the wire record `RecorderStateChangedEventArgs` to a domain `RecorderStateChangedEventArgs`: the channel's
/// identifier is rebuilt from its index and serial number if both were sent; event flags that were not sent are 0; the
/// result of the state's conversion is ignored.
///
/// Failure: "RecorderStateChanged is empty" when no event flags, no state and not both parts of the identifier were
/// sent; the event flags of the destination are then 0.
///
/// Ends the process: anything that ends it in ThriftToRecorderStateConverter.
///
/// Lost: the high word of the serial number.
class ThriftToRecorderStateChangedEventArgsConverter
    : public Converter<Generated::RecorderStateChangedEventArgs, Notification::RecorderStateChangedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::RecorderStateChangedEventArgs const& source,
                               Notification::RecorderStateChangedEventArgs& destination) const;

    ConversionResult To(Generated::RecorderStateChangedEventArgs const& source,
                        Notification::RecorderStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::RecorderStateChangedEventArgs&& source,
                        Notification::RecorderStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
