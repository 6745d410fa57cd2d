#include "Thrift/Commands/ToSetMultiviewerDataCommandParams.h"

#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/PlayersDataOverrides.h"
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
    // The identifier that was sent is not read: these parameters get a new one. Peers rely on this.
    SetMultiviewerDataCommandParams params;
    if (auto const result = ReadOverrides(source.playersDataOverrides, params.playersDataOverrides); !result.success)
        return Nested(result);
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
