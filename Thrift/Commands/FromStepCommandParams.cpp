#include "Thrift/Commands/FromStepCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StepCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/StepCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult StepCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StepCommandParams const& source,
                                                        Generated::StepCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendChannels(source.players, destination.players)) destination.__isset.players = true;
    destination.__set_fieldCount(source.fieldCount); // its flag is unchanged
    return Success();
}

ConversionResult StepCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StepCommandParams&& source,
                                                        Generated::StepCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
