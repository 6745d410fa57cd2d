#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipDeletionFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipDeletionFailedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipDeletionFailedEventArgs` by the wire record `ClipDeletionFailedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipDeletionFailedEventArgs - missing fields": the flag of `clipCommand`, `removedClip`, `result`,
///   `essenceBitmap`, `fromUCode` or `forceForPlaylist` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: the two reserved bytes, which no wire field carries, are 0; all but the low byte of
/// `essenceBitmap`; an unknown `result` reads as `Success`; what ThriftToClipConverter and
/// ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipDeletionFailedEventArgsConverter
    : public Converter<Generated::ClipDeletionFailedEventArgs, Notification::ClipDeletionFailedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipDeletionFailedEventArgs const& source,
                               Notification::ClipDeletionFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipDeletionFailedEventArgs const& source,
                        Notification::ClipDeletionFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipDeletionFailedEventArgs&& source,
                        Notification::ClipDeletionFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
