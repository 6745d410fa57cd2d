#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipUpdateFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipUpdateFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipUpdateFinishedEventArgs` by the wire record `ClipUpdateFinishedEventArgs`. The database
/// revision is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipUpdateFinishedEventArgs - missing fields": the flag of `clipCommand`, `endOfGrowingClipCreation`,
///   `oldClip` or `newClip` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipUpdateFinishedEventArgsConverter
    : public Converter<Generated::ClipUpdateFinishedEventArgs, Notification::ClipUpdateFinishedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipUpdateFinishedEventArgs const& source,
                               Notification::ClipUpdateFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipUpdateFinishedEventArgs const& source,
                        Notification::ClipUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipUpdateFinishedEventArgs&& source,
                        Notification::ClipUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
