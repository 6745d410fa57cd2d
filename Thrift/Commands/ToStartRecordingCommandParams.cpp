#include "Thrift/Commands/ToStartRecordingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/StartCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/StartRecordingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToStartRecordingCommandParamsConverter::To(
    Generated::StartRecordingCommandParams const& source,
    HighLevelOperations::Commands::StartCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadChannels(source.__isset.recorders, source.recorders, destination.recorders);
    return Success();
}

ConversionResult ThriftToStartRecordingCommandParamsConverter::To(
    Generated::StartRecordingCommandParams&& source,
    HighLevelOperations::Commands::StartCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
