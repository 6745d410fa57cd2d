#include "Thrift/Commands/FromGetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandParams.h"
#include "Thrift/Data/FromGuid.h"
#include "generated/GetMultiviewerDataCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

ConversionResult GetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::GetMultiviewerDataCommandParams const& source,
    Generated::GetMultiviewerDataCommandParams& destination) const noexcept
{
    static Data::GuidToThriftConverter const guidConverter;

    return guidConverter.To(source.commandGuid, destination.commandGuid);
}

ConversionResult GetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::GetMultiviewerDataCommandParams&& source,
    Generated::GetMultiviewerDataCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
