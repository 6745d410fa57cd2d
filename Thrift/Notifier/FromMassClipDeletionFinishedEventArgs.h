#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipDeletionEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipDeletionFinishedEventArgs;
} // namespace Generated

/// Writes a domain `MassClipDeletionEventArgs` into the wire record `MassClipDeletionFinishedEventArgs`. It can't fail.
class MassClipDeletionFinishedEventArgsToThriftConverter
    : public Converter<Notification::MassClipDeletionEventArgs, Generated::MassClipDeletionFinishedEventArgs>
{
public:
    ConversionResult To(Notification::MassClipDeletionEventArgs const& source,
                        Generated::MassClipDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::MassClipDeletionEventArgs&& source,
                        Generated::MassClipDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
