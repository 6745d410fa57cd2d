#include "Thrift/Commands/FromCreateAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/FromCreateClipsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult CreateAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams const& source,
    Generated::CreateAnglesGroupCommandParams& destination) const noexcept
{
    static CreateClipsCommandParamsToThriftConverter const createClipsCommandParamsConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    TALVO_FLAGGED(destination, groupKviIndex) = source.groupKviIndex;
    std::ignore =
        createClipsCommandParamsConverter.To(source.creationParams, TALVO_FLAGGED(destination, creationParams));
    return Success();
}

ConversionResult CreateAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::CreateAnglesGroupCommandParams&& source,
    Generated::CreateAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
