#include "Thrift/Commands/ToGetServersCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetServersCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetServersCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using ServerRange = HighLevelOperations::Commands::GetServersCommandParams::ServerRange;

namespace
{

ServerRange Range(Generated::ServerRange::type const range) noexcept
{
    switch (range)
    {
    case Generated::ServerRange::Local:
        return ServerRange::Local;
    case Generated::ServerRange::Remote:
        return ServerRange::Remote;
    default: // including unknown ranges
        return ServerRange::LocalAndRemote;
    }
}

} // namespace

ConversionResult ThriftToGetServersCommandParamsConverter::To(
    Generated::GetServersCommandParams const& source,
    HighLevelOperations::Commands::GetServersCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    if (source.__isset.serverRange) destination.serverRange = Range(source.serverRange);
    return Success();
}

ConversionResult ThriftToGetServersCommandParamsConverter::To(
    Generated::GetServersCommandParams&& source,
    HighLevelOperations::Commands::GetServersCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
