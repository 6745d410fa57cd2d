#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationFailedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipCreationFailedEventArgs` by the wire record `ClipCreationFailedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipCreationFailedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType`, `networkType` or `result` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: other words of a creation or network type read as `Unknown`; case counts; an unknown `result` reads
/// as `Success`; what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationFailedEventArgsConverter
    : public Converter<Generated::ClipCreationFailedEventArgs, Notification::ClipCreationFailedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipCreationFailedEventArgs const& source,
                               Notification::ClipCreationFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationFailedEventArgs const& source,
                        Notification::ClipCreationFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationFailedEventArgs&& source,
                        Notification::ClipCreationFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
