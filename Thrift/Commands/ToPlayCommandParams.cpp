#include "Thrift/Commands/ToPlayCommandParams.h"

#include "Domain/HighLevelOperations/Commands/PlayCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlayCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToPlayCommandParamsConverter::To(Generated::PlayCommandParams const& source,
                                       HighLevelOperations::Commands::PlayCommandParams& destination) const noexcept
{
    auto const& isset = source.__isset;

    ReadGuid(source.commandId, destination.commandGuid);
    ReadChannels(source.__isset.players, source.players, destination.players);
    // A numerator of 0 is read, although it is never written; a missing speed is 0 / 1.
    bool const hasSpeed = isset.speedNum && isset.speedDen && source.speedDen != 0;
    destination.speedNumerator = hasSpeed ? source.speedNum : 0;
    destination.speedDenominator = hasSpeed ? source.speedDen : 1;
    return Success();
}

ConversionResult
ThriftToPlayCommandParamsConverter::To(Generated::PlayCommandParams&& source,
                                       HighLevelOperations::Commands::PlayCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
