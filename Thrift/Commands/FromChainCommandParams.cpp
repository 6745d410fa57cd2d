#include "Thrift/Commands/FromChainCommandParams.h"

#include "Domain/HighLevelOperations/Commands/ChainCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/ChainCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ChainCommandParamsToThriftConverter::To(HighLevelOperations::Commands::ChainCommandParams const& source,
                                        Generated::ChainCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendByChannel(source.players, destination.players, SendGuid)) destination.__isset.players = true;
    TALVO_FLAGGED(destination, timepoint) = source.timepoint.position;
    SendBoundary(source.inBoundary, TALVO_FLAGGED(destination, inBoundary));
    SendBoundary(source.outBoundary, TALVO_FLAGGED(destination, outBoundary));
    return Success();
}

ConversionResult ChainCommandParamsToThriftConverter::To(HighLevelOperations::Commands::ChainCommandParams&& source,
                                                         Generated::ChainCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
