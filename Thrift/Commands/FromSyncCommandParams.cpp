#include "Thrift/Commands/FromSyncCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SyncCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/SyncCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult SyncCommandParamsToThriftConverter::To(HighLevelOperations::Commands::SyncCommandParams const& source,
                                                        Generated::SyncCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    SendGuid(source.sourcePlayer, TALVO_FLAGGED(destination, sourcePlayer));
    if (SendChannels(source.players, destination.players)) destination.__isset.players = true;
    SendBoundary(source.inBoundary, TALVO_FLAGGED(destination, inBoundary));
    SendBoundary(source.outBoundary, TALVO_FLAGGED(destination, outBoundary));
    return Success();
}

ConversionResult SyncCommandParamsToThriftConverter::To(HighLevelOperations::Commands::SyncCommandParams&& source,
                                                        Generated::SyncCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
