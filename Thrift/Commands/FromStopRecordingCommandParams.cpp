#include "Thrift/Commands/FromStopRecordingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StopCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/StopRecordingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
StopRecordingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StopCommandParams const& source,
                                                Generated::StopRecordingCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendChannels(source.recorders, destination.recorders)) destination.__isset.recorders = true;
    return Success();
}

ConversionResult
StopRecordingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StopCommandParams&& source,
                                                Generated::StopRecordingCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
