#include "Thrift/Commands/ToGetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandParams.h"
#include "Thrift/Data/ToGuid.h"
#include "generated/GetMultiviewerDataCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

ConversionResult ThriftToGetMultiviewerDataCommandParamsConverter::To(
    Generated::GetMultiviewerDataCommandParams const& source,
    HighLevelOperations::Commands::GetMultiviewerDataCommandParams& destination) const noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;

    return guidConverter.To(source.commandGuid, destination.commandGuid);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
