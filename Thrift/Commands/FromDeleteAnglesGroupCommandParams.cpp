#include "Thrift/Commands/FromDeleteAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeleteAnglesGroupCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeleteAnglesGroupCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult DeleteAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::DeleteAnglesGroupCommandParams const& source,
    Generated::DeleteAnglesGroupCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, destination.commandGuid);
    SendGuid(source.groupGuid, destination.groupGuid);
    return Success();
}

ConversionResult DeleteAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::DeleteAnglesGroupCommandParams&& source,
    Generated::DeleteAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
