#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCommandEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCommandEventArgs;
} // namespace Generated

/// Reads the clip command block of a domain event from the wire record `ClipCommandEventArgs`; its database revision is
/// left alone.
///
/// Failure: "Missing fields for ClipCommand" when any flag but that of `subCommandIndex`, which is read whether set or
/// not, is clear; the destination is then unchanged.
///
/// Lost on the way: all but the low 32 bits of `localMachineSerial` and the low 16 of `userTicket`; any other word of a
/// source reads as `Unknown`.
class ThriftToClipCommandEventArgsConverter
    : public Converter<Generated::ClipCommandEventArgs, Notification::ClipCommandEventArgs>
{
public:
    ConversionResult To(Generated::ClipCommandEventArgs const& source,
                        Notification::ClipCommandEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ClipCommandEventArgs&& source,
                        Notification::ClipCommandEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
