#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipDeletionFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipDeletionFailedEventArgs;
} // namespace Generated

/// Writes a domain `ClipDeletionFailedEventArgs` into the wire record `ClipDeletionFailedEventArgs`. It can't fail.
///
/// Lost: the two reserved bytes, which have no wire field; a `result` outside its table, which is written as `Success`;
/// what ClipToThriftConverter loses.
class ClipDeletionFailedEventArgsToThriftConverter
    : public Converter<Notification::ClipDeletionFailedEventArgs, Generated::ClipDeletionFailedEventArgs>
{
public:
    ConversionResult To(Notification::ClipDeletionFailedEventArgs const& source,
                        Generated::ClipDeletionFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipDeletionFailedEventArgs&& source,
                        Generated::ClipDeletionFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
