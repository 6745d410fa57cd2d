#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipDeletionFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipDeletionFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipDeletionFinishedEventArgs` with the wire record `ClipDeletionFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipDeletionFinishedEventArgs - missing fields": the flag of `clipCommand` or `removedClip` is clear;
///   the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: the two reserved bytes, which have no wire field, are 0; what ThriftToClipConverter and
/// ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipDeletionFinishedEventArgsConverter
    : public Converter<Generated::ClipDeletionFinishedEventArgs, Notification::ClipDeletionFinishedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipDeletionFinishedEventArgs const& source,
                               Notification::ClipDeletionFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipDeletionFinishedEventArgs const& source,
                        Notification::ClipDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipDeletionFinishedEventArgs&& source,
                        Notification::ClipDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
