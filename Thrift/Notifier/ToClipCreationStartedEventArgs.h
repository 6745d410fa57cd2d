#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationStartedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipCreationEventArgs` with the wire record `ClipCreationStartedEventArgs`. The database revision
/// is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipCreationStartedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType` or `networkType` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: unknown words for a creation or network type read as `Unknown` (words are case-sensitive); what
/// ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationStartedEventArgsConverter
    : public Converter<Generated::ClipCreationStartedEventArgs, Notification::ClipCreationEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipCreationStartedEventArgs const& source,
                               Notification::ClipCreationEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationStartedEventArgs const& source,
                        Notification::ClipCreationEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationStartedEventArgs&& source,
                        Notification::ClipCreationEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
