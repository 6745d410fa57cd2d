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

/// Writes a domain `ClipMoveFailedEventArgs` into the wire record `ClipMoveFailedEventArgs`. It can't fail.
///
/// Lost: a `result` outside its table, which is written as `Success`; what ClipToThriftConverter loses.
class ClipMoveFailedEventArgsToThriftConverter
    : public Converter<Notification::ClipMoveFailedEventArgs, Generated::ClipMoveFailedEventArgs>
{
public:
    ConversionResult To(Notification::ClipMoveFailedEventArgs const& source,
                        Generated::ClipMoveFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipMoveFailedEventArgs&& source,
                        Generated::ClipMoveFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
