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

/// Replaces a domain `ClipDeletionFinishedEventArgs` by the wire record `ClipDeletionFinishedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipDeletionFinishedEventArgs - missing fields": the flag of `clipCommand` or `removedClip` is clear;
///   the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: the two reserved bytes, which no wire field carries, are 0; what ThriftToClipConverter and
/// ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipDeletionFinishedEventArgsConverter
    : public Converter<Generated::ClipDeletionFinishedEventArgs, Notification::ClipDeletionFinishedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipDeletionFinishedEventArgs const& source,
                               Notification::ClipDeletionFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipDeletionFinishedEventArgs const& source,
                        Notification::ClipDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipDeletionFinishedEventArgs&& source,
                        Notification::ClipDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
