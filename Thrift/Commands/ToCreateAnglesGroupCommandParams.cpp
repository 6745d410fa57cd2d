#include "Thrift/Commands/ToCreateAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToCreateAnglesGroupCommandParamsConverter::To(
    Generated::CreateAnglesGroupCommandParams const& source,
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const noexcept
{
    static ThriftToCreateClipsCommandParamsConverter const createClipsCommanParamsConverter; // spelled so

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.groupKviIndex = source.groupKviIndex; // whether its flag is set or not
    std::ignore = createClipsCommanParamsConverter.To(source.creationParams, destination.creationParams);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
