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

/// Replaces a domain `ClipMoveFinishedEventArgs` by the wire record `ClipMoveFinishedEventArgs`. The database revision
/// is read whether set or not.
///
/// Failures:
/// - "Incomplete ClipMoveFinishedEventArgs - missing fields": the flag of `clipCommand`, `sourceClip` or `destClip` is
///   clear; the destination is then unchanged.
/// - any of ThriftToClipConverter; the destination is then unchanged.
/// - "Missing fields for ClipCommand": from `clipCommand`; the destination by then holds everything else, and
///   placeholders.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: what ThriftToClipConverter and ThriftToClipCommandEventArgsConverter lose.
class ThriftToClipMoveFinishedEventArgsConverter
    : public Converter<Generated::ClipMoveFinishedEventArgs, Notification::ClipMoveFinishedEventArgs>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipMoveFinishedEventArgs const& source,
                               Notification::ClipMoveFinishedEventArgs& destination) const;

    ConversionResult To(Generated::ClipMoveFinishedEventArgs const& source,
                        Notification::ClipMoveFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipMoveFinishedEventArgs&& source,
                        Notification::ClipMoveFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
