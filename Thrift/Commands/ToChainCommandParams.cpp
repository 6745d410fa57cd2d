#include "Thrift/Commands/ToChainCommandParams.h"

#include "Domain/HighLevelOperations/Commands/ChainCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/ChainCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToChainCommandParamsConverter::To(Generated::ChainCommandParams const& source,
                                        HighLevelOperations::Commands::ChainCommandParams& destination) const noexcept
{
    static Data::Channels::ThriftToLoadBoundaryConverter const loadBoundaryConverter;
    auto const& isset = source.__isset;

    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadByChannel(isset.players, source.players, destination.players, ReadGuidAs<Corvane::Data::Clips::Guid>);
    if (isset.timepoint) destination.timepoint = {source.timepoint};
    // A boundary that is rejected leaves the destination's unchanged.
    if (isset.inBoundary)
        std::ignore = Read("inBoundary", loadBoundaryConverter, source.inBoundary, destination.inBoundary);
    if (isset.outBoundary)
        std::ignore = Read("outBoundary", loadBoundaryConverter, source.outBoundary, destination.outBoundary);
    return Success();
}

ConversionResult
ThriftToChainCommandParamsConverter::To(Generated::ChainCommandParams&& source,
                                        HighLevelOperations::Commands::ChainCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
