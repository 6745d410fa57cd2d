#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct AnglesGroupUpdateFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class AnglesGroupUpdateFinishedEventArgs;
} // namespace Generated

/// Writes a domain `AnglesGroupUpdateFinishedEventArgs` into the wire record `AnglesGroupUpdateFinishedEventArgs`. It
/// can't fail. It writes the fields of its `updateEventArgs`.
class AnglesGroupUpdateFinishedEventArgsToThriftConverter
    : public Converter<Notification::AnglesGroupUpdateFinishedEventArgs, Generated::AnglesGroupUpdateFinishedEventArgs>
{
public:
    ConversionResult To(Notification::AnglesGroupUpdateFinishedEventArgs const& source,
                        Generated::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::AnglesGroupUpdateFinishedEventArgs&& source,
                        Generated::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
