#include "Thrift/Commands/FromPlayCommandParams.h"

#include "Domain/HighLevelOperations/Commands/PlayCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlayCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult PlayCommandParamsToThriftConverter::To(HighLevelOperations::Commands::PlayCommandParams const& source,
                                                        Generated::PlayCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandId));
    if (SendChannels(source.players, destination.players)) destination.__isset.players = true;
    // A speed is written as a pair, or not at all.
    if (source.speedNumerator != 0 && source.speedDenominator != 0)
    {
        TALVO_FLAGGED(destination, speedNum) = source.speedNumerator;
        TALVO_FLAGGED(destination, speedDen) = source.speedDenominator;
    }
    return Success();
}

ConversionResult PlayCommandParamsToThriftConverter::To(HighLevelOperations::Commands::PlayCommandParams&& source,
                                                        Generated::PlayCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
