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

/// Replaces a domain `ClipCreationFailedEventArgs` with the wire record `ClipCreationFailedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipCreationFailedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType`, `networkType` or `result` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: unknown words for a creation or network type read as `Unknown` (words are case-sensitive); an unknown `result`
/// reads as `Success`; what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationFailedEventArgsConverter
    : public Converter<Generated::ClipCreationFailedEventArgs, Notification::ClipCreationFailedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipCreationFailedEventArgs const& source,
                               Notification::ClipCreationFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationFailedEventArgs const& source,
                        Notification::ClipCreationFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationFailedEventArgs&& source,
                        Notification::ClipCreationFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
