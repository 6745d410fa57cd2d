#include "Thrift/Commands/ToSetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::SetMultiviewerDataCommandParams;

ConversionResult ThriftToSetMultiviewerDataCommandParamsConverter::To(
    Generated::SetMultiviewerDataCommandParams const& source,
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams& destination) const noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;
    static Data::ToPlayerDataOverrides const toPlayerDataOverrides;

    // The identifier that was sent is not read: these parameters have a new one. Peers rely on it.
    SetMultiviewerDataCommandParams params;
    for (auto const& [wireChannel, wireOverrides] : source.playersDataOverrides)
    {
        Corvane::Data::Channels::Guid channel;
        if (auto const result = Read({"playersDataOverrides", wireChannel.value}, guidConverter, wireChannel, channel);
            !result.success)
            return Nested(result);
        Multiviewer::PlayerDataOverrides overrides;
        if (auto const result =
                Read({"playersDataOverrides", wireChannel.value}, toPlayerDataOverrides, wireOverrides, overrides);
            !result.success)
            return Nested(result);
        params.playersDataOverrides.emplace(channel, std::move(overrides));
    }
    destination = std::move(params);
    return Success();
}

ConversionResult ThriftToSetMultiviewerDataCommandParamsConverter::To(
    Generated::SetMultiviewerDataCommandParams&& source,
    HighLevelOperations::Commands::SetMultiviewerDataCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
