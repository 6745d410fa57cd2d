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

/// Replaces a domain `ClipCreationEventArgs` by the wire record `ClipCreationStartedEventArgs`. The database revision
/// is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipCreationStartedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip`, `newClip`,
///   `creationType` or `networkType` is clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: other words of a creation or network type read as `Unknown`; case counts; what
/// ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipCreationStartedEventArgsConverter
    : public Converter<Generated::ClipCreationStartedEventArgs, Notification::ClipCreationEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipCreationStartedEventArgs const& source,
                               Notification::ClipCreationEventArgs& destination) const;

    ConversionResult To(Generated::ClipCreationStartedEventArgs const& source,
                        Notification::ClipCreationEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCreationStartedEventArgs&& source,
                        Notification::ClipCreationEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
