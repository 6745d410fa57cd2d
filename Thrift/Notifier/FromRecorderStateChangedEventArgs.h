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

/// Writes a domain `RecorderStateChangedEventArgs` into the wire record `RecorderStateChangedEventArgs`. It can't fail.
/// Event flags of 0 stay off the wire.
///
/// Lost on the way: of `channelGuid` all but index and serial, and what RecorderStateToThriftConverter loses.
class RecorderStateChangedEventArgsToThriftConverter
    : public Converter<Notification::RecorderStateChangedEventArgs, Generated::RecorderStateChangedEventArgs>
{
public:
    ConversionResult To(Notification::RecorderStateChangedEventArgs const& source,
                        Generated::RecorderStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::RecorderStateChangedEventArgs&& source,
                        Generated::RecorderStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
