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

/// Replaces a domain `ClipUpdateFailedEventArgs` with the wire record `ClipUpdateFailedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipUpdateFailedEventArgs - missing fields": the flag of `clipCommand`, `result`, `oldClip` or
///   `newClip` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: an unknown `result` reads as `Success`; what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter
/// lose.
class ThriftToClipUpdateFailedEventArgsConverter
    : public Converter<Generated::ClipUpdateFailedEventArgs, Notification::ClipUpdateFailedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipUpdateFailedEventArgs const& source,
                               Notification::ClipUpdateFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipUpdateFailedEventArgs const& source,
                        Notification::ClipUpdateFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipUpdateFailedEventArgs&& source,
                        Notification::ClipUpdateFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
