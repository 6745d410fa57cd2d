#include "Thrift/Commands/FromDialCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DialCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/DialCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult DialCommandParamsToThriftConverter::To(HighLevelOperations::Commands::DialCommandParams const& source,
                                                        Generated::DialCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendChannels(source.players, destination.players)) destination.__isset.players = true;
    destination.__set_velocity(source.velocity); // its flag is unchanged
    return Success();
}

ConversionResult DialCommandParamsToThriftConverter::To(HighLevelOperations::Commands::DialCommandParams&& source,
                                                        Generated::DialCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
