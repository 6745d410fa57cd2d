#include "Thrift/Commands/ToChainCommandParams.h"

#include "Domain/HighLevelOperations/Commands/ChainCommandParams.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "Thrift/Detail/ByChannel.h"
#include "Thrift/Detail/Identifiers.h"
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
    // A boundary that is refused leaves the destination's as it was.
    if (isset.inBoundary) std::ignore = loadBoundaryConverter.To(source.inBoundary, destination.inBoundary);
    if (isset.outBoundary) std::ignore = loadBoundaryConverter.To(source.outBoundary, destination.outBoundary);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
