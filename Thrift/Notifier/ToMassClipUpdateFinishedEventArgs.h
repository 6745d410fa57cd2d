#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipUpdateEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipUpdateFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `MassClipUpdateEventArgs` with the wire record `MassClipUpdateFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete MassClipUpdateFinishedEventArgs - missing fields": the flag of `clipCommand` or `machineSerial` is
///   clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Lost: the high word of `machineSerial`; what ThriftToClipCommandEventArgsConverter loses.
class ThriftToMassClipUpdateFinishedEventArgsConverter
    : public Converter<Generated::MassClipUpdateFinishedEventArgs, Notification::MassClipUpdateEventArgs>
{
public:
    ConversionResult To(Generated::MassClipUpdateFinishedEventArgs const& source,
                        Notification::MassClipUpdateEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::MassClipUpdateFinishedEventArgs&& source,
                        Notification::MassClipUpdateEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
