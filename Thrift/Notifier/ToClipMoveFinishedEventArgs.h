#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipMoveFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipMoveFinishedEventArgs;
} // namespace Generated

/// Replaces a domain `ClipMoveFinishedEventArgs` with the wire record `ClipMoveFinishedEventArgs`. The database
/// revision is read regardless of its flag.
///
/// Failures:
/// - "Incomplete ClipMoveFinishedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip` or `destClip` is
///   clear; the destination is then unchanged.
/// - any failure of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination then holds everything else, and placeholders
///   for the clip command block.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipMoveFinishedEventArgsConverter
    : public Converter<Generated::ClipMoveFinishedEventArgs, Notification::ClipMoveFinishedEventArgs>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipMoveFinishedEventArgs const& source,
                               Notification::ClipMoveFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveFinishedEventArgs const& source,
                        Notification::ClipMoveFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveFinishedEventArgs&& source,
                        Notification::ClipMoveFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
