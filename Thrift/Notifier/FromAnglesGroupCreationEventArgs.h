#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct AnglesGroupCreationEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class AnglesGroupCreationEventArgs;
} // namespace Generated

/// Writes a domain `AnglesGroupCreationEventArgs` into the wire record `AnglesGroupCreationEventArgs`. It can't fail.
class AnglesGroupCreationEventArgsToThriftConverter
    : public Converter<Notification::AnglesGroupCreationEventArgs, Generated::AnglesGroupCreationEventArgs>
{
public:
    ConversionResult To(Notification::AnglesGroupCreationEventArgs const& source,
                        Generated::AnglesGroupCreationEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::AnglesGroupCreationEventArgs&& source,
                        Generated::AnglesGroupCreationEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
