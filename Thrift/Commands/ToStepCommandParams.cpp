#include "Thrift/Commands/ToStepCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StepCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/StepCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToStepCommandParamsConverter::To(Generated::StepCommandParams const& source,
                                       HighLevelOperations::Commands::StepCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadChannels(source.__isset.players, source.players, destination.players);
    destination.fieldCount = source.fieldCount; // regardless of its flag
    return Success();
}

ConversionResult
ThriftToStepCommandParamsConverter::To(Generated::StepCommandParams&& source,
                                       HighLevelOperations::Commands::StepCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
