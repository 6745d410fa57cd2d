#include "Thrift/Commands/ToGetTrainsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetTrainsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetTrainsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetTrainsCommandParamsConverter::To(
    Generated::GetTrainsCommandParams const& source,
    HighLevelOperations::Commands::GetTrainsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    return Success();
}

ConversionResult ThriftToGetTrainsCommandParamsConverter::To(
    Generated::GetTrainsCommandParams&& source,
    HighLevelOperations::Commands::GetTrainsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
