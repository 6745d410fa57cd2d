#include "Thrift/Commands/FromGetClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetClipsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetClipsCommandParams const& source,
                                           Generated::GetClipsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    return Success();
}

ConversionResult
GetClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetClipsCommandParams&& source,
                                           Generated::GetClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
