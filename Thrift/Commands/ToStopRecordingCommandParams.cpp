#include "Thrift/Commands/ToStopRecordingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StopCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/StopRecordingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToStopRecordingCommandParamsConverter::To(
    Generated::StopRecordingCommandParams const& source,
    HighLevelOperations::Commands::StopCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadChannels(source.__isset.recorders, source.recorders, destination.recorders);
    return Success();
}

ConversionResult ThriftToStopRecordingCommandParamsConverter::To(
    Generated::StopRecordingCommandParams&& source,
    HighLevelOperations::Commands::StopCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
