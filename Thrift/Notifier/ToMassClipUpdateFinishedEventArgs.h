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

/// Replaces a domain `MassClipUpdateEventArgs` by the wire record `MassClipUpdateFinishedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete MassClipUpdateFinishedEventArgs - missing fields": the flag of `clipCommand` or `machineSerial` is
///   clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Lost on the way: the high word of `machineSerial`; what ThriftToClipCommandEventArgsConverter loses.
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
