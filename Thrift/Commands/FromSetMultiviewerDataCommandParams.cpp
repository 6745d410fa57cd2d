#include "Thrift/Commands/FromSetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/PlayersDataOverrides.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult SetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams const& source,
    Generated::SetMultiviewerDataCommandParams& destination) const noexcept
{
    // The identifier is not written. Peers rely on this.
    return SendOverrides(
        source.playersDataOverrides,
        [&](Corvane::Data::Generated::Guid&& channel, Corvane::Data::Generated::PlayerDataOverrides&& overrides)
        { destination.playersDataOverrides.insert_or_assign(std::move(channel), std::move(overrides)); });
}

ConversionResult SetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams&& source,
    Generated::SetMultiviewerDataCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
