#include "Thrift/Commands/ToGetChannelsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetChannelsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetChannelsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetChannelsCommandParamsConverter::To(
    Generated::GetChannelsCommandParams const& source,
    HighLevelOperations::Commands::GetChannelsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    return Success();
}

ConversionResult ThriftToGetChannelsCommandParamsConverter::To(
    Generated::GetChannelsCommandParams&& source,
    HighLevelOperations::Commands::GetChannelsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
