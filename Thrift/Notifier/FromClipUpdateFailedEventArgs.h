#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipUpdateFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipUpdateFailedEventArgs;
} // namespace Generated

/// Writes a domain `ClipUpdateFailedEventArgs` into the wire record `ClipUpdateFailedEventArgs`. It can't fail.
///
/// Lost: a `result` outside its table, which is written as `Success`; what ClipToThriftConverter loses.
class ClipUpdateFailedEventArgsToThriftConverter
    : public Converter<Notification::ClipUpdateFailedEventArgs, Generated::ClipUpdateFailedEventArgs>
{
public:
    ConversionResult To(Notification::ClipUpdateFailedEventArgs const& source,
                        Generated::ClipUpdateFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipUpdateFailedEventArgs&& source,
                        Generated::ClipUpdateFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
