#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct AnglesGroupCreationFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class AnglesGroupCreationFinishedEventArgs;
} // namespace Generated

/// Writes a domain `AnglesGroupCreationFinishedEventArgs` into the wire record `AnglesGroupCreationFinishedEventArgs`.
/// It can't fail.
class AnglesGroupCreationFinishedEventArgsToThriftConverter
    : public Converter<Notification::AnglesGroupCreationFinishedEventArgs,
                       Generated::AnglesGroupCreationFinishedEventArgs>
{
public:
    ConversionResult To(Notification::AnglesGroupCreationFinishedEventArgs const& source,
                        Generated::AnglesGroupCreationFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::AnglesGroupCreationFinishedEventArgs&& source,
                        Generated::AnglesGroupCreationFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
