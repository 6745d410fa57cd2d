#include "Thrift/Commands/ToGetClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetClipsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetClipsCommandParamsConverter::To(
    Generated::GetClipsCommandParams const& source,
    HighLevelOperations::Commands::GetClipsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    return Success();
}

ConversionResult ThriftToGetClipsCommandParamsConverter::To(
    Generated::GetClipsCommandParams&& source,
    HighLevelOperations::Commands::GetClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
