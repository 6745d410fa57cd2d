#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipDeletionFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipDeletionFailedEventArgs;
} // namespace Generated

/// Replaces a domain `MassClipDeletionFailedEventArgs` with the wire record `MassClipDeletionFailedEventArgs`. The
/// database revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete MassClipDeletionFailedEventArgs - missing fields": the flag of `clipCommand`, `result` or
///   `machineSerial` is clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Lost: the high word of `machineSerial`; an unknown `result` reads as `Success`; what
/// ThriftToClipCommandEventArgsConverter loses.
class ThriftToMassClipDeletionFailedEventArgsConverter
    : public Converter<Generated::MassClipDeletionFailedEventArgs, Notification::MassClipDeletionFailedEventArgs>
{
public:
    ConversionResult To(Generated::MassClipDeletionFailedEventArgs const& source,
                        Notification::MassClipDeletionFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::MassClipDeletionFailedEventArgs&& source,
                        Notification::MassClipDeletionFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
