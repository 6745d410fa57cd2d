#include "Thrift/Commands/FromGetServersCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetServersCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Servers/FromServerInfo.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetServersCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetServersCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetServersCommandReply const& source,
                                            Generated::GetServersCommandReply& destination) const noexcept
{
    Data::Servers::ServerInfoToThriftConverter const fromServerInfo;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    if (auto const result = AppendEach("servers", fromServerInfo, source.servers, destination.servers); !result.success)
        return Nested(result);
    if (!source.servers.empty()) destination.__isset.servers = true;
    return Success();
}

ConversionResult
GetServersCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetServersCommandReply&& source,
                                            Generated::GetServersCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
