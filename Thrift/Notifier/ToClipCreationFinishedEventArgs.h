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

/// Replaces a domain `ClipCreationFinishedEventArgs` with the wire record `ClipCreationFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipCreationFinishedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType` or `networkType` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: unknown words for a creation or network type read as `Unknown` (words are case-sensitive); what
/// ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationFinishedEventArgsConverter
    : public Converter<Generated::ClipCreationFinishedEventArgs, Notification::ClipCreationFinishedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipCreationFinishedEventArgs const& source,
                               Notification::ClipCreationFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationFinishedEventArgs const& source,
                        Notification::ClipCreationFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationFinishedEventArgs&& source,
                        Notification::ClipCreationFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
