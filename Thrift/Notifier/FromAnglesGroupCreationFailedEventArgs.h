#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct AnglesGroupCreationFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class AnglesGroupCreationFailedEventArgs;
} // namespace Generated

/// Writes a domain `AnglesGroupCreationFailedEventArgs` into the wire record `AnglesGroupCreationFailedEventArgs`. It
/// can't fail. No converter reads this record.
///
/// Lost: a `result` outside its table, which is written as `Success`.
class AnglesGroupCreationFailedEventArgsToThriftConverter
    : public Converter<Notification::AnglesGroupCreationFailedEventArgs, Generated::AnglesGroupCreationFailedEventArgs>
{
public:
    ConversionResult To(Notification::AnglesGroupCreationFailedEventArgs const& source,
                        Generated::AnglesGroupCreationFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::AnglesGroupCreationFailedEventArgs&& source,
                        Generated::AnglesGroupCreationFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
