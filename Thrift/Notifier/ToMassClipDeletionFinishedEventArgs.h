#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipDeletionEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipDeletionFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `MassClipDeletionEventArgs` with the wire record `MassClipDeletionFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete MassClipDeletionFinishedEventArgs - missing fields": the flag of `clipCommand` or `machineSerial` is
///   clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Lost: the high word of `machineSerial`; what ThriftToClipCommandEventArgsConverter loses.
class ThriftToMassClipDeletionFinishedEventArgsConverter
    : public Converter<Generated::MassClipDeletionFinishedEventArgs, Notification::MassClipDeletionEventArgs>
{
public:
    ConversionResult To(Generated::MassClipDeletionFinishedEventArgs const& source,
                        Notification::MassClipDeletionEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::MassClipDeletionFinishedEventArgs&& source,
                        Notification::MassClipDeletionEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
