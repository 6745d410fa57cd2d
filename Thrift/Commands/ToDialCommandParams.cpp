#include "Thrift/Commands/ToDialCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DialCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/DialCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToDialCommandParamsConverter::To(Generated::DialCommandParams const& source,
                                       HighLevelOperations::Commands::DialCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadChannels(source.__isset.players, source.players, destination.players);
    destination.velocity = source.velocity; // regardless of its flag
    return Success();
}

ConversionResult
ThriftToDialCommandParamsConverter::To(Generated::DialCommandParams&& source,
                                       HighLevelOperations::Commands::DialCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
