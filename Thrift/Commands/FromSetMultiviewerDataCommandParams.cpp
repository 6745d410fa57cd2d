#include "Thrift/Commands/FromSetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Detail/Results.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult SetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams const& source,
    Generated::SetMultiviewerDataCommandParams& destination) const noexcept
{
    static Data::GuidToThriftConverter const guidConverter;
    static Data::FromPlayerDataOverrides const fromPlayerDataOverrides;

    // The identifier does not travel. Peers rely on it.
    for (auto const& [channel, overrides] : source.playersDataOverrides)
    {
        Corvane::Data::Generated::PlayerDataOverrides wireOverrides;
        if (auto const result = fromPlayerDataOverrides.To(overrides, wireOverrides); !result.success)
            return Nested(result);
        Corvane::Data::Generated::Guid wireChannel;
        if (auto const result = guidConverter.To(channel, wireChannel); !result.success) return Nested(result);
        destination.playersDataOverrides.insert_or_assign(std::move(wireChannel), std::move(wireOverrides));
    }
    return Success();
}

ConversionResult SetMultiviewerDataCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams&& source,
    Generated::SetMultiviewerDataCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
