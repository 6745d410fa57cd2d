#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct DisconnectedFromNetworkEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class DisconnectedFromNetworkEventArgs;
} // namespace Generated

/// Replaces a domain `DisconnectedFromNetworkEventArgs` with the wire record `DisconnectedFromNetworkEventArgs`.
///
/// Failure: "DisconnectedFromNetwork is empty" when the flag of `serverId` is clear; the destination is then unchanged.
class ThriftToDisconnectedFromNetworkEventArgsConverter
    : public Converter<Generated::DisconnectedFromNetworkEventArgs, Notification::DisconnectedFromNetworkEventArgs>
{
public:
    ConversionResult To(Generated::DisconnectedFromNetworkEventArgs const& source,
                        Notification::DisconnectedFromNetworkEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::DisconnectedFromNetworkEventArgs&& source,
                        Notification::DisconnectedFromNetworkEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
