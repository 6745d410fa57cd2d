#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct AnglesGroupDeletionFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class AnglesGroupDeletionFinishedEventArgs;
} // namespace Generated

/// Writes a domain `AnglesGroupDeletionFinishedEventArgs` into the wire record `AnglesGroupDeletionFinishedEventArgs`.
/// It can't fail. It writes the fields of its `deletionEventArgs`.
class AnglesGroupDeletionFinishedEventArgsToThriftConverter
    : public Converter<Notification::AnglesGroupDeletionFinishedEventArgs,
                       Generated::AnglesGroupDeletionFinishedEventArgs>
{
public:
    ConversionResult To(Notification::AnglesGroupDeletionFinishedEventArgs const& source,
                        Generated::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::AnglesGroupDeletionFinishedEventArgs&& source,
                        Generated::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
