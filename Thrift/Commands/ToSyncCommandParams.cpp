#include "Thrift/Commands/ToSyncCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SyncCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/SyncCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToSyncCommandParamsConverter::To(Generated::SyncCommandParams const& source,
                                       HighLevelOperations::Commands::SyncCommandParams& destination) const noexcept
{
    static Data::Channels::ThriftToLoadBoundaryConverter const loadBoundaryConverter;
    auto const& isset = source.__isset;

    ReadGuid(source.commandGuid, destination.commandGuid);
    if (isset.sourcePlayer) ReadGuid(source.sourcePlayer, destination.sourcePlayer);
    ReadChannels(source.__isset.players, source.players, destination.players);
    // A boundary that is rejected leaves the destination's unchanged.
    if (isset.inBoundary)
        std::ignore = Read("inBoundary", loadBoundaryConverter, source.inBoundary, destination.inBoundary);
    if (isset.outBoundary)
        std::ignore = Read("outBoundary", loadBoundaryConverter, source.outBoundary, destination.outBoundary);
    return Success();
}

ConversionResult
ThriftToSyncCommandParamsConverter::To(Generated::SyncCommandParams&& source,
                                       HighLevelOperations::Commands::SyncCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
