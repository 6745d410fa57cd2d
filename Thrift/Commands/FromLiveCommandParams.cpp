#include "Thrift/Commands/FromLiveCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LiveCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/LiveCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult LiveCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LiveCommandParams const& source,
                                                        Generated::LiveCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendByChannel(source.players, destination.players, SendGuid)) destination.__isset.players = true;
    return Success();
}

ConversionResult LiveCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LiveCommandParams&& source,
                                                        Generated::LiveCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
