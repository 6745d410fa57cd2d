#include "Thrift/Commands/ToGetServersCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetServersCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Servers/ToServerInfo.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetServersCommandReply_types.h"

#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetServersCommandReplyConverter::To(
    Generated::GetServersCommandReply const& source,
    HighLevelOperations::Commands::GetServersCommandReply& destination) const noexcept
{
    Data::Servers::ThriftToServerInfoConverter const toServerInfo;
    auto const& isset = source.__isset;

    std::vector<Corvane::Data::Servers::ServerInfo> servers;
    if (isset.servers)
    {
        if (auto const result = AppendEach("servers", toServerInfo, source.servers, servers); !result.success)
            return Nested(result);
    }
    destination.commandGuid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    destination.servers = std::move(servers);
    return isset.guid || isset.servers ? Success() : Failure("GetServersCommandReply is empty");
}

ConversionResult ThriftToGetServersCommandReplyConverter::To(
    Generated::GetServersCommandReply&& source,
    HighLevelOperations::Commands::GetServersCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
