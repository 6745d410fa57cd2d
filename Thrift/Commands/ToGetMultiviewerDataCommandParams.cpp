#include "Thrift/Commands/ToGetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandParams.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
#include "generated/GetMultiviewerDataCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetMultiviewerDataCommandParamsConverter::To(
    Generated::GetMultiviewerDataCommandParams const& source,
    HighLevelOperations::Commands::GetMultiviewerDataCommandParams& destination) const noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;

    return Read("commandGuid", guidConverter, source.commandGuid, destination.commandGuid);
}

ConversionResult ThriftToGetMultiviewerDataCommandParamsConverter::To(
    Generated::GetMultiviewerDataCommandParams&& source,
    HighLevelOperations::Commands::GetMultiviewerDataCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
