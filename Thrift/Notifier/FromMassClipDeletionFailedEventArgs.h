#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipDeletionFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipDeletionFailedEventArgs;
} // namespace Generated

/// Writes a domain `MassClipDeletionFailedEventArgs` into the wire record `MassClipDeletionFailedEventArgs`. It can't
/// fail.
///
/// Lost: a `result` outside its table, which is written as `Success`.
class MassClipDeletionFailedEventArgsToThriftConverter
    : public Converter<Notification::MassClipDeletionFailedEventArgs, Generated::MassClipDeletionFailedEventArgs>
{
public:
    ConversionResult To(Notification::MassClipDeletionFailedEventArgs const& source,
                        Generated::MassClipDeletionFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::MassClipDeletionFailedEventArgs&& source,
                        Generated::MassClipDeletionFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
