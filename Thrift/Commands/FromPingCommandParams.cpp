#include "Thrift/Commands/FromPingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/PingCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/PingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult PingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::PingCommandParams const& source,
                                                        Generated::PingCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    return Success();
}

ConversionResult PingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::PingCommandParams&& source,
                                                        Generated::PingCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
