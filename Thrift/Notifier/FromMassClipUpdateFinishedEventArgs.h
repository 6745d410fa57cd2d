#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct MassClipUpdateEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class MassClipUpdateFinishedEventArgs;
} // namespace Generated

/// Writes a domain `MassClipUpdateEventArgs` into the wire record `MassClipUpdateFinishedEventArgs`. It can't fail.
class MassClipUpdateFinishedEventArgsToThriftConverter
    : public Converter<Notification::MassClipUpdateEventArgs, Generated::MassClipUpdateFinishedEventArgs>
{
public:
    ConversionResult To(Notification::MassClipUpdateEventArgs const& source,
                        Generated::MassClipUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::MassClipUpdateEventArgs&& source,
                        Generated::MassClipUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
