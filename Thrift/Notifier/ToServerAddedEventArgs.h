#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ServerAddedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ServerAddedEventArgs;
} // namespace Generated

/// Replaces a domain `ServerAddedEventArgs` with the wire record `ServerAddedEventArgs`.
///
/// Failures, with the destination unchanged:
/// - "Missing serverId" or "Missing serverInfo": its flag is clear.
/// - any failure of ThriftToServerInfoConverter.
class ThriftToServerAddedEventArgsConverter
    : public Converter<Generated::ServerAddedEventArgs, Notification::ServerAddedEventArgs>
{
public:
    ConversionResult To(Generated::ServerAddedEventArgs const& source,
                        Notification::ServerAddedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::ServerAddedEventArgs&& source,
                        Notification::ServerAddedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
