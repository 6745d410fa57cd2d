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
/// identifier is built anew from its index and serial number, if both were sent; event flags that were not sent are 0;
/// what the conversion of the state reports is not looked at.
///
/// Failure: "RecorderStateChanged is empty" when neither both parts of the identifier nor event flags nor a state was
/// sent; the event flags of the destination are then 0.
///
/// Ends the process: what ends it in ThriftToRecorderStateConverter.
///
/// Lost on the way: the high word of the serial number.
class ThriftToRecorderStateChangedEventArgsConverter
    : public Converter<Generated::RecorderStateChangedEventArgs, Notification::RecorderStateChangedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::RecorderStateChangedEventArgs const& source,
                               Notification::RecorderStateChangedEventArgs& destination) const;

    ConversionResult To(Generated::RecorderStateChangedEventArgs const& source,
                        Notification::RecorderStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::RecorderStateChangedEventArgs&& source,
                        Notification::RecorderStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
