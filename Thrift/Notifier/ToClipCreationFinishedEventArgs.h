#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipCreationFinishedEventArgs` by the wire record `ClipCreationFinishedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipCreationFinishedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType` or `networkType` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: other words of a creation or network type read as `Unknown`; case counts; what
/// ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationFinishedEventArgsConverter
    : public Converter<Generated::ClipCreationFinishedEventArgs, Notification::ClipCreationFinishedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipCreationFinishedEventArgs const& source,
                               Notification::ClipCreationFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationFinishedEventArgs const& source,
                        Notification::ClipCreationFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationFinishedEventArgs&& source,
                        Notification::ClipCreationFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
