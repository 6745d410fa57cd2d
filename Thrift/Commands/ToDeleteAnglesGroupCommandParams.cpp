#include "Thrift/Commands/ToDeleteAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeleteAnglesGroupCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeleteAnglesGroupCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToDeleteAnglesGroupCommandParamsConverter::To(
    Generated::DeleteAnglesGroupCommandParams const& source,
    HighLevelOperations::Commands::DeleteAnglesGroupCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadGuid(source.groupGuid, destination.groupGuid);
    return Success();
}

ConversionResult ThriftToDeleteAnglesGroupCommandParamsConverter::To(
    Generated::DeleteAnglesGroupCommandParams&& source,
    HighLevelOperations::Commands::DeleteAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
