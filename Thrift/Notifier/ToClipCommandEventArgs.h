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
/// unchanged.
///
/// Failure: "Missing fields for ClipCommand" when any flag except that of `subCommandIndex`, which is read regardless
/// of its flag, is clear; the destination is then unchanged.
///
/// Lost: all but the low 32 bits of `localMachineSerial` and the low 16 bits of `userTicket`; an unknown word for the
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
