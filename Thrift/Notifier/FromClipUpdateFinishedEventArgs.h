#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipUpdateFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipUpdateFinishedEventArgs;
} // namespace Generated

/// Writes a domain `ClipUpdateFinishedEventArgs` into the wire record `ClipUpdateFinishedEventArgs`. It can't fail.
///
/// Lost: what ClipToThriftConverter loses.
class ClipUpdateFinishedEventArgsToThriftConverter
    : public Converter<Notification::ClipUpdateFinishedEventArgs, Generated::ClipUpdateFinishedEventArgs>
{
public:
    ConversionResult To(Notification::ClipUpdateFinishedEventArgs const& source,
                        Generated::ClipUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipUpdateFinishedEventArgs&& source,
                        Generated::ClipUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
