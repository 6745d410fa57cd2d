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

/// Writes a domain `ClipMoveFinishedEventArgs` into the wire record `ClipMoveFinishedEventArgs`. It can't fail.
///
/// Lost: what ClipToThriftConverter loses.
class ClipMoveFinishedEventArgsToThriftConverter
    : public Converter<Notification::ClipMoveFinishedEventArgs, Generated::ClipMoveFinishedEventArgs>
{
public:
    ConversionResult To(Notification::ClipMoveFinishedEventArgs const& source,
                        Generated::ClipMoveFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipMoveFinishedEventArgs&& source,
                        Generated::ClipMoveFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
