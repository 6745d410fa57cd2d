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

/// Replaces a domain `ClipDeletionFailedEventArgs` with the wire record `ClipDeletionFailedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipDeletionFailedEventArgs - missing fields": the flag of `clipCommand`, `removedClip`, `result`,
///   `essenceBitmap`, `fromUCode` or `forceForPlaylist` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: the two reserved bytes, which have no wire field, are 0; all but the low byte of `essenceBitmap`; an unknown
/// `result` reads as `Success`; what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipDeletionFailedEventArgsConverter
    : public Converter<Generated::ClipDeletionFailedEventArgs, Notification::ClipDeletionFailedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipDeletionFailedEventArgs const& source,
                               Notification::ClipDeletionFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipDeletionFailedEventArgs const& source,
                        Notification::ClipDeletionFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipDeletionFailedEventArgs&& source,
                        Notification::ClipDeletionFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
