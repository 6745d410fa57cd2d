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

/// Replaces a domain `AnglesGroupCreationFinishedEventArgs` with the wire record
/// `AnglesGroupCreationFinishedEventArgs`, by converting its only field, `creationEventArgs`, with
/// ThriftToAnglesGroupCreationEventArgsConverter.
///
/// Failure: "Missing fields for ClipCommand", from the `clipCommandEventArgs` in it; the destination then holds
/// everything else, and placeholders for the clip command block.
///
/// Lost: what ThriftToClipCommandEventArgsConverter loses.
class ThriftToAnglesGroupCreationFinishedEventArgsConverter
    : public Converter<Generated::AnglesGroupCreationFinishedEventArgs,
                       Notification::AnglesGroupCreationFinishedEventArgs>
{
public:
    ConversionResult To(Generated::AnglesGroupCreationFinishedEventArgs const& source,
                        Notification::AnglesGroupCreationFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::AnglesGroupCreationFinishedEventArgs&& source,
                        Notification::AnglesGroupCreationFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
