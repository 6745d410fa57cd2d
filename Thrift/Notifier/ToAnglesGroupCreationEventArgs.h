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

/// Replaces a domain `AnglesGroupCreationEventArgs` with the wire record `AnglesGroupCreationEventArgs`. All fields are
/// required.
///
/// Failure: "Missing fields for ClipCommand", from `clipCommandEventArgs`; the destination then holds everything else,
/// and placeholders for the clip command block.
///
/// Lost: what ThriftToClipCommandEventArgsConverter loses.
class ThriftToAnglesGroupCreationEventArgsConverter
    : public Converter<Generated::AnglesGroupCreationEventArgs, Notification::AnglesGroupCreationEventArgs>
{
public:
    ConversionResult To(Generated::AnglesGroupCreationEventArgs const& source,
                        Notification::AnglesGroupCreationEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::AnglesGroupCreationEventArgs&& source,
                        Notification::AnglesGroupCreationEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
