#include "Thrift/Commands/FromGoIdleCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GoIdleCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GoIdleCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GoIdleCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GoIdleCommandParams const& source,
                                         Generated::GoIdleCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendChannels(source.players, destination.players)) destination.__isset.players = true;
    destination.__set_setBlackScreen(source.setBlackScreen); // its flag is unchanged
    return Success();
}

ConversionResult GoIdleCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GoIdleCommandParams&& source,
                                                          Generated::GoIdleCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
