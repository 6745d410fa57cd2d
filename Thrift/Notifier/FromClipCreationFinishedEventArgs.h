#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationFinishedEventArgs;
} // namespace Generated

/// Writes a domain `ClipCreationFinishedEventArgs` into the wire record `ClipCreationFinishedEventArgs`. It can't fail.
///
/// Lost: what ClipToThriftConverter loses.
class ClipCreationFinishedEventArgsToThriftConverter
    : public Converter<Notification::ClipCreationFinishedEventArgs, Generated::ClipCreationFinishedEventArgs>
{
public:
    ConversionResult To(Notification::ClipCreationFinishedEventArgs const& source,
                        Generated::ClipCreationFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipCreationFinishedEventArgs&& source,
                        Generated::ClipCreationFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
