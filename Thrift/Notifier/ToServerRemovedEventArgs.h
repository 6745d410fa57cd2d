#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ServerRemovedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ServerRemovedEventArgs;
} // namespace Generated

/// Replaces a domain `ServerRemovedEventArgs` with the wire record `ServerRemovedEventArgs`.
///
/// Failure: "ServerRemoved is empty" when the flag of `serverId` is clear; the destination is then unchanged.
class ThriftToServerRemovedEventArgsConverter
    : public Converter<Generated::ServerRemovedEventArgs, Notification::ServerRemovedEventArgs>
{
public:
    ConversionResult To(Generated::ServerRemovedEventArgs const& source,
                        Notification::ServerRemovedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ServerRemovedEventArgs&& source,
                        Notification::ServerRemovedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
