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

/// Replaces a domain `ClipUpdateFinishedEventArgs` with the wire record `ClipUpdateFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipUpdateFinishedEventArgs - missing fields": the flag of `clipCommand`, `endOfGrowingClipCreation`,
///   `oldClip` or `newClip` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipUpdateFinishedEventArgsConverter
    : public Converter<Generated::ClipUpdateFinishedEventArgs, Notification::ClipUpdateFinishedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipUpdateFinishedEventArgs const& source,
                               Notification::ClipUpdateFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipUpdateFinishedEventArgs const& source,
                        Notification::ClipUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipUpdateFinishedEventArgs&& source,
                        Notification::ClipUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
