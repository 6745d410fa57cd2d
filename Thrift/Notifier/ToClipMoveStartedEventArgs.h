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

/// Replaces a domain `ClipMoveEventArgs` with the wire record `ClipMoveStartedEventArgs`. The database revision is read
/// regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipMoveStartedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip` or `destClip` is
///   clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipMoveStartedEventArgsConverter
    : public Converter<Generated::ClipMoveStartedEventArgs, Notification::ClipMoveEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipMoveStartedEventArgs const& source,
                               Notification::ClipMoveEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveStartedEventArgs const& source,
                        Notification::ClipMoveEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveStartedEventArgs&& source,
                        Notification::ClipMoveEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
