#include "Thrift/Commands/FromGetServersCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetServersCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetServersCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using ServerRange = HighLevelOperations::Commands::GetServersCommandParams::ServerRange;

namespace
{

Generated::ServerRange::type Range(ServerRange const range) noexcept
{
    switch (range)
    {
    case ServerRange::Local:
        return Generated::ServerRange::Local;
    case ServerRange::Remote:
        return Generated::ServerRange::Remote;
    default: // including unknown ranges
        return Generated::ServerRange::LocalAndRemote;
    }
}

} // namespace

ConversionResult
GetServersCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetServersCommandParams const& source,
                                             Generated::GetServersCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    TALVO_FLAGGED(destination, serverRange) = Range(source.serverRange);
    return Success();
}

ConversionResult
GetServersCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetServersCommandParams&& source,
                                             Generated::GetServersCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
