#include "Thrift/Commands/FromGetAnglesGroupsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetAnglesGroupsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult GetAnglesGroupsCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::GetAnglesGroupsCommandParams const& source,
    Generated::GetAnglesGroupsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    return Success();
}

ConversionResult
GetAnglesGroupsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetAnglesGroupsCommandParams&& source,
                                                  Generated::GetAnglesGroupsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
