#include "Thrift/Commands/ToGetAnglesGroupsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetAnglesGroupsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetAnglesGroupsCommandParamsConverter::To(
    Generated::GetAnglesGroupsCommandParams const& source,
    HighLevelOperations::Commands::GetAnglesGroupsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    return Success();
}

ConversionResult ThriftToGetAnglesGroupsCommandParamsConverter::To(
    Generated::GetAnglesGroupsCommandParams&& source,
    HighLevelOperations::Commands::GetAnglesGroupsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
