#include "Thrift/Commands/FromStartRecordingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StartCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/StartRecordingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
StartRecordingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StartCommandParams const& source,
                                                 Generated::StartRecordingCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendChannels(source.recorders, destination.recorders)) destination.__isset.recorders = true;
    return Success();
}

ConversionResult
StartRecordingCommandParamsToThriftConverter::To(HighLevelOperations::Commands::StartCommandParams&& source,
                                                 Generated::StartRecordingCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
