#include "Thrift/Notifier/ToServerRemovedEventArgs.h"

#include "Domain/CorvaneData/Notification/ServerRemovedEventArgs.h"
#include "Thrift/Detail/Results.h"
#include "generated/ServerRemovedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToServerRemovedEventArgsConverter::To(Generated::ServerRemovedEventArgs const& source,
                                            Notification::ServerRemovedEventArgs& destination) const noexcept
{
    if (!source.__isset.serverId) return Failure("ServerRemoved is empty");

    destination.serverId = Corvane::Data::Servers::ServerId(source.serverId);
    return Success();
}

ConversionResult
ThriftToServerRemovedEventArgsConverter::To(Generated::ServerRemovedEventArgs&& source,
                                            Notification::ServerRemovedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
