#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipUpdateFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipUpdateFailedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipUpdateFailedEventArgs` by the wire record `ClipUpdateFailedEventArgs`. The database revision
/// is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipUpdateFailedEventArgs - missing fields": the flag of `clipCommand`, `result`, `oldClip` or
///   `newClip` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: an unknown `result` reads as `Success`; what ThriftToClipConverter and
/// ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipUpdateFailedEventArgsConverter
    : public Converter<Generated::ClipUpdateFailedEventArgs, Notification::ClipUpdateFailedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipUpdateFailedEventArgs const& source,
                               Notification::ClipUpdateFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipUpdateFailedEventArgs const& source,
                        Notification::ClipUpdateFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipUpdateFailedEventArgs&& source,
                        Notification::ClipUpdateFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
