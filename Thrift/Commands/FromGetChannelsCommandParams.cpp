#include "Thrift/Commands/FromGetChannelsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetChannelsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetChannelsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetChannelsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetChannelsCommandParams const& source,
                                              Generated::GetChannelsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    return Success();
}

ConversionResult
GetChannelsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetChannelsCommandParams&& source,
                                              Generated::GetChannelsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
