#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipUpdateFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipUpdateFailedEventArgs;
} // namespace Generated

/// Replaces a domain `MassClipUpdateFailedEventArgs` with the wire record `MassClipUpdateFailedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete MassClipUpdateFailedEventArgs - missing fields": the flag of `clipCommand`, `result` or
///   `machineSerial` is clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Lost: the high word of `machineSerial`; an unknown `result` reads as `Success`; what
/// ThriftToClipCommandEventArgsConverter loses.
class ThriftToMassClipUpdateFailedEventArgsConverter
    : public Converter<Generated::MassClipUpdateFailedEventArgs, Notification::MassClipUpdateFailedEventArgs>
{
public:
    ConversionResult To(Generated::MassClipUpdateFailedEventArgs const& source,
                        Notification::MassClipUpdateFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::MassClipUpdateFailedEventArgs&& source,
                        Notification::MassClipUpdateFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
