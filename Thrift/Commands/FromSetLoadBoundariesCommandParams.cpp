#include "Thrift/Commands/FromSetLoadBoundariesCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetLoadBoundariesCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/SetLoadBoundariesCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::SetLoadBoundariesCommandParams;

namespace
{

void SendBoundaryParam(SetLoadBoundariesCommandParams::PlayerParam const& source,
                       Generated::SetLoadBoundariesCommandParam& destination)
{
    SendBoundary(source.inBoundary, TALVO_FLAGGED(destination, inBoundary));
    SendBoundary(source.outBoundary, TALVO_FLAGGED(destination, outBoundary));
}

} // namespace

ConversionResult SetLoadBoundariesCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetLoadBoundariesCommandParams const& source,
    Generated::SetLoadBoundariesCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendByChannel(source.playersParameters, destination.playersParameters, SendBoundaryParam))
        destination.__isset.playersParameters = true;
    return Success();
}

ConversionResult SetLoadBoundariesCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetLoadBoundariesCommandParams&& source,
    Generated::SetLoadBoundariesCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
