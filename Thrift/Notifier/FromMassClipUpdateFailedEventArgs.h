#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipUpdateFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipUpdateFailedEventArgs;
} // namespace Generated

/// Writes a domain `MassClipUpdateFailedEventArgs` into the wire record `MassClipUpdateFailedEventArgs`. It can't fail.
///
/// Lost: a `result` outside its table, which is written as `Success`.
class MassClipUpdateFailedEventArgsToThriftConverter
    : public Converter<Notification::MassClipUpdateFailedEventArgs, Generated::MassClipUpdateFailedEventArgs>
{
public:
    ConversionResult To(Notification::MassClipUpdateFailedEventArgs const& source,
                        Generated::MassClipUpdateFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::MassClipUpdateFailedEventArgs&& source,
                        Generated::MassClipUpdateFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
