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

/// Replaces a domain `MassClipDeletionEventArgs` by the wire record `MassClipDeletionFinishedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete MassClipDeletionFinishedEventArgs - missing fields": the flag of `clipCommand` or `machineSerial` is
///   clear; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Lost on the way: the high word of `machineSerial`; what ThriftToClipCommandEventArgsConverter loses.
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
