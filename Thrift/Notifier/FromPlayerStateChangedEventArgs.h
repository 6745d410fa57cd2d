#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct PlayerStateChangedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class PlayerStateChangedEventArgs;
} // namespace Generated

/// Writes a domain `PlayerStateChangedEventArgs` into the wire record `PlayerStateChangedEventArgs`. It can't fail.
/// Event flags of 0 are not written.
///
/// Lost: everything in `channelGuid` except index and serial number, and what PlayerStateToThriftConverter loses.
class PlayerStateChangedEventArgsToThriftConverter
    : public Converter<Notification::PlayerStateChangedEventArgs, Generated::PlayerStateChangedEventArgs>
{
public:
    ConversionResult To(Notification::PlayerStateChangedEventArgs const& source,
                        Generated::PlayerStateChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::PlayerStateChangedEventArgs&& source,
                        Generated::PlayerStateChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
