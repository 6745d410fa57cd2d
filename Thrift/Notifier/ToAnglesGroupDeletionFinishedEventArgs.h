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

/// Replaces a domain `AnglesGroupDeletionFinishedEventArgs` with the wire record
/// `AnglesGroupDeletionFinishedEventArgs`. All fields are required.
///
/// Failure: "Missing fields for ClipCommand", from `clipCommandEventArgs`; the destination then holds everything else,
/// and placeholders for the clip command block.
///
/// Lost: what ThriftToClipCommandEventArgsConverter loses.
class ThriftToAnglesGroupDeletionFinishedEventArgsConverter
    : public Converter<Generated::AnglesGroupDeletionFinishedEventArgs,
                       Notification::AnglesGroupDeletionFinishedEventArgs>
{
public:
    ConversionResult To(Generated::AnglesGroupDeletionFinishedEventArgs const& source,
                        Notification::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::AnglesGroupDeletionFinishedEventArgs&& source,
                        Notification::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
