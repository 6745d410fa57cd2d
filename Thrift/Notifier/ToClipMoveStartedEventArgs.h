#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipMoveEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipMoveStartedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipMoveEventArgs` by the wire record `ClipMoveStartedEventArgs`. The database revision is read
/// whether set or not.
///
/// Failures:
/// - "Incomplete ClipMoveStartedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip` or `destClip` is
///   clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipMoveStartedEventArgsConverter
    : public Converter<Generated::ClipMoveStartedEventArgs, Notification::ClipMoveEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipMoveStartedEventArgs const& source,
                               Notification::ClipMoveEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveStartedEventArgs const& source,
                        Notification::ClipMoveEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveStartedEventArgs&& source,
                        Notification::ClipMoveEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
