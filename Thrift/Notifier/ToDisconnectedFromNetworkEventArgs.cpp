#include "Thrift/Notifier/ToDisconnectedFromNetworkEventArgs.h"

#include "Domain/CorvaneData/Notification/DisconnectedFromNetworkEventArgs.h"
#include "Thrift/Detail/Results.h"
#include "generated/DisconnectedFromNetworkEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToDisconnectedFromNetworkEventArgsConverter::To(
    Generated::DisconnectedFromNetworkEventArgs const& source,
    Notification::DisconnectedFromNetworkEventArgs& destination) const noexcept
{
    if (!source.__isset.serverId) return Failure("DisconnectedFromNetwork is empty");

    destination.serverId = Corvane::Data::Servers::ServerId(source.serverId);
    return Success();
}

ConversionResult ThriftToDisconnectedFromNetworkEventArgsConverter::To(
    Generated::DisconnectedFromNetworkEventArgs&& source,
    Notification::DisconnectedFromNetworkEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
