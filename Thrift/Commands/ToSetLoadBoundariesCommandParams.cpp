#include "Thrift/Commands/ToSetLoadBoundariesCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetLoadBoundariesCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/SetLoadBoundariesCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::SetLoadBoundariesCommandParams;

namespace
{

/// Reads the fields of an entry. Their flags are ignored.
SetLoadBoundariesCommandParams::PlayerParam ReadBoundaryParam(Generated::SetLoadBoundariesCommandParam const& source)
{
    return {ReadBoundary(source.inBoundary), ReadBoundary(source.outBoundary)};
}

} // namespace

ConversionResult ThriftToSetLoadBoundariesCommandParamsConverter::To(
    Generated::SetLoadBoundariesCommandParams const& source,
    HighLevelOperations::Commands::SetLoadBoundariesCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadByChannel(source.__isset.playersParameters, source.playersParameters, destination.playersParameters,
                  ReadBoundaryParam);
    return Success();
}

ConversionResult ThriftToSetLoadBoundariesCommandParamsConverter::To(
    Generated::SetLoadBoundariesCommandParams&& source,
    HighLevelOperations::Commands::SetLoadBoundariesCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
