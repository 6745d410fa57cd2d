#include "Thrift/Commands/ToPingCommandParams.h"

#include "Domain/HighLevelOperations/Commands/PingCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/PingCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToPingCommandParamsConverter::To(Generated::PingCommandParams const& source,
                                       HighLevelOperations::Commands::PingCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    return Success();
}

ConversionResult
ThriftToPingCommandParamsConverter::To(Generated::PingCommandParams&& source,
                                       HighLevelOperations::Commands::PingCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
