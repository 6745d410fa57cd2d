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
/// Event flags of 0 are not written.
///
/// Lost: everything in `channelGuid` except index and serial number, and what RecorderStateToThriftConverter loses.
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
