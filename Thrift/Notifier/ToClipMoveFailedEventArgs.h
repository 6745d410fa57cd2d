#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipMoveFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipMoveFailedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipMoveFailedEventArgs` with the wire record `ClipMoveFailedEventArgs`. The database revision is
/// read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipMoveFailedEventArgs - missing fields": the flag of `clipCommand`, `result`, `sourceClip` or
///   `destClip` is clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: an unknown `result` reads as `Success`; what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter
/// lose.
class ThriftToClipMoveFailedEventArgsConverter
    : public Converter<Generated::ClipMoveFailedEventArgs, Notification::ClipMoveFailedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipMoveFailedEventArgs const& source,
                               Notification::ClipMoveFailedEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveFailedEventArgs const& source,
                        Notification::ClipMoveFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveFailedEventArgs&& source,
                        Notification::ClipMoveFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
