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

/// Replaces a domain `AnglesGroupUpdateFinishedEventArgs` with the wire record `AnglesGroupUpdateFinishedEventArgs`.
/// All fields are required.
///
/// Failure: "Missing fields for ClipCommand", from `clipCommandEventArgs`; the destination then holds everything else,
/// and placeholders for the clip command block.
///
/// Lost: what ThriftToClipCommandEventArgsConverter loses.
class ThriftToAnglesGroupUpdateFinishedEventArgsConverter
    : public Converter<Generated::AnglesGroupUpdateFinishedEventArgs, Notification::AnglesGroupUpdateFinishedEventArgs>
{
public:
    ConversionResult To(Generated::AnglesGroupUpdateFinishedEventArgs const& source,
                        Notification::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::AnglesGroupUpdateFinishedEventArgs&& source,
                        Notification::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
