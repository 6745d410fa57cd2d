#include "Thrift/Notifier/FromServerAddedEventArgs.h"

#include "Domain/CorvaneData/Notification/ServerAddedEventArgs.h"
#include "Thrift/Data/Servers/FromServerInfo.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/ServerAddedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ServerAddedEventArgsToThriftConverter::To(Notification::ServerAddedEventArgs const& source,
                                                           Generated::ServerAddedEventArgs& destination) const noexcept
{
    Data::Servers::ServerInfoToThriftConverter const fromServerInfo;

    TALVO_FLAGGED(destination, serverId) = source.serverId.Value();
    if (auto const result = fromServerInfo.To(source.serverInfo, destination.serverInfo); !result.success)
        return Nested(result);
    destination.__isset.serverInfo = true;
    return Success();
}

ConversionResult ServerAddedEventArgsToThriftConverter::To(Notification::ServerAddedEventArgs&& source,
                                                           Generated::ServerAddedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
