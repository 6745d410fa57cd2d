#include "Thrift/Commands/FromGetTrainsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetTrainsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetTrainsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetTrainsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetTrainsCommandParams const& source,
                                            Generated::GetTrainsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    return Success();
}

ConversionResult
GetTrainsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetTrainsCommandParams&& source,
                                            Generated::GetTrainsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
