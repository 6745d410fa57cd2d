#include "Thrift/Notifier/ToServerAddedEventArgs.h"

#include "Domain/CorvaneData/Notification/ServerAddedEventArgs.h"
#include "Thrift/Data/Servers/ToServerInfo.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/ServerAddedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ThriftToServerAddedEventArgsConverter::To(Generated::ServerAddedEventArgs const& source,
                                          Notification::ServerAddedEventArgs& destination) const noexcept
{
    Data::Servers::ThriftToServerInfoConverter const toServerInfo;

    if (!source.__isset.serverId) return Failure("Missing serverId");
    if (!source.__isset.serverInfo) return Failure("Missing serverInfo");

    Corvane::Data::Servers::ServerInfo serverInfo;
    if (auto const result = Read("serverInfo", toServerInfo, source.serverInfo, serverInfo); !result.success)
        return Nested(result);

    destination = {Corvane::Data::Servers::ServerId(source.serverId), serverInfo};
    return Success();
}

ConversionResult
ThriftToServerAddedEventArgsConverter::To(Generated::ServerAddedEventArgs&& source,
                                          Notification::ServerAddedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
