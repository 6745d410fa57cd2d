#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipMoveFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipMoveFailedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipMoveFailedEventArgs` by the wire record `ClipMoveFailedEventArgs`. The database revision is
/// read whether set or not.
///
/// Failures:
/// - "Incomplete ClipMoveFailedEventArgs - missing fields": the flag of `clipCommand`, `result`, `sourceClip` or
///   `destClip` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: an unknown `result` reads as `Success`; what ThriftToClipConverter and
/// ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipMoveFailedEventArgsConverter
    : public Converter<Generated::ClipMoveFailedEventArgs, Notification::ClipMoveFailedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipMoveFailedEventArgs const& source,
                               Notification::ClipMoveFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveFailedEventArgs const& source,
                        Notification::ClipMoveFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveFailedEventArgs&& source,
                        Notification::ClipMoveFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
