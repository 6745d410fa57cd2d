#include "Thrift/Commands/ToGoIdleCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GoIdleCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GoIdleCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToGoIdleCommandParamsConverter::To(Generated::GoIdleCommandParams const& source,
                                         HighLevelOperations::Commands::GoIdleCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadChannels(source.__isset.players, source.players, destination.players);
    destination.setBlackScreen = source.setBlackScreen; // regardless of its flag
    return Success();
}

ConversionResult
ThriftToGoIdleCommandParamsConverter::To(Generated::GoIdleCommandParams&& source,
                                         HighLevelOperations::Commands::GoIdleCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
