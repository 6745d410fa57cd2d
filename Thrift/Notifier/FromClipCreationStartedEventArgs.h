#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationStartedEventArgs;
} // namespace Generated

/// Writes a domain `ClipCreationEventArgs` into the wire record `ClipCreationStartedEventArgs`. It can't fail.
///
/// Lost: what ClipToThriftConverter loses.
class ClipCreationStartedEventArgsToThriftConverter
    : public Converter<Notification::ClipCreationEventArgs, Generated::ClipCreationStartedEventArgs>
{
public:
    ConversionResult To(Notification::ClipCreationEventArgs const& source,
                        Generated::ClipCreationStartedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipCreationEventArgs&& source,
                        Generated::ClipCreationStartedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
