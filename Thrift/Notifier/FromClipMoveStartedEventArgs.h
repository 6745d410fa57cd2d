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

/// Writes a domain `ClipMoveEventArgs` into the wire record `ClipMoveStartedEventArgs`. It can't fail.
///
/// Lost: what ClipToThriftConverter loses.
class ClipMoveStartedEventArgsToThriftConverter
    : public Converter<Notification::ClipMoveEventArgs, Generated::ClipMoveStartedEventArgs>
{
public:
    ConversionResult To(Notification::ClipMoveEventArgs const& source,
                        Generated::ClipMoveStartedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipMoveEventArgs&& source,
                        Generated::ClipMoveStartedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
