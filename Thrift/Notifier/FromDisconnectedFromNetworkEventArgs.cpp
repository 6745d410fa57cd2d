#include "Thrift/Notifier/FromDisconnectedFromNetworkEventArgs.h"

#include "Domain/CorvaneData/Notification/DisconnectedFromNetworkEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/DisconnectedFromNetworkEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult DisconnectedFromNetworkEventArgsToThriftConverter::To(
    Notification::DisconnectedFromNetworkEventArgs const& source,
    Generated::DisconnectedFromNetworkEventArgs& destination) const noexcept
{
    TALVO_FLAGGED(destination, serverId) = source.serverId.Value();
    return Success();
}

ConversionResult DisconnectedFromNetworkEventArgsToThriftConverter::To(
    Notification::DisconnectedFromNetworkEventArgs&& source,
    Generated::DisconnectedFromNetworkEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
