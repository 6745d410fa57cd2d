#include "Thrift/Commands/ToLiveCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LiveCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/LiveCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToLiveCommandParamsConverter::To(Generated::LiveCommandParams const& source,
                                       HighLevelOperations::Commands::LiveCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    // Without players the whole destination is reset: a new identifier replaces the one that was sent.
    if (!source.__isset.players)
        destination = HighLevelOperations::Commands::LiveCommandParams();
    else
        ReadByChannel(true, source.players, destination.players, ReadGuidAs<Corvane::Data::Channels::Guid>);
    return Success();
}

ConversionResult
ThriftToLiveCommandParamsConverter::To(Generated::LiveCommandParams&& source,
                                       HighLevelOperations::Commands::LiveCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
