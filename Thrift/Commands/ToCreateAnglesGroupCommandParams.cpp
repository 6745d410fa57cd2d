#include "Thrift/Commands/ToCreateAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToCreateAnglesGroupCommandParamsConverter::ToOrThrow(
    Generated::CreateAnglesGroupCommandParams const& source,
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const
{
    static ThriftToCreateClipsCommandParamsConverter const createClipsCommanParamsConverter; // the spelling is intended

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.groupKviIndex = source.groupKviIndex; // regardless of its flag
    std::ignore =
        Read("creationParams", createClipsCommanParamsConverter, source.creationParams, destination.creationParams);
    return Success();
}

ConversionResult ThriftToCreateAnglesGroupCommandParamsConverter::To(
    Generated::CreateAnglesGroupCommandParams const& source,
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToCreateAnglesGroupCommandParamsConverter::To(
    Generated::CreateAnglesGroupCommandParams&& source,
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
