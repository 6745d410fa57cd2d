#include "Thrift/Commands/FromGetMultiviewerDataCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetMultiviewerDataCommandReply_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult GetMultiviewerDataCommandReplyToThriftConverter::To(
    HighLevelOperations::Commands::GetMultiviewerDataCommandReply const& source,
    Generated::GetMultiviewerDataCommandReply& destination) const noexcept
{
    static Data::GuidToThriftConverter const guidConverter;
    static Data::OperationStatusToThriftConverter const fromStatus;
    static Data::FromPlayerDataOverrides const fromPlayerDataOverrides;

    if (auto const result = guidConverter.To(source.commandGuid, destination.guid); !result.success)
        return Nested(result);
    if (auto const result = fromStatus.To(source.operationStatus, destination.status); !result.success)
        return Nested(result);
    for (auto const& [channel, overrides] : source.playersDataOverrides)
    {
        Corvane::Data::Generated::PlayerDataOverrides wireOverrides;
        if (auto const result = fromPlayerDataOverrides.To(overrides, wireOverrides); !result.success)
            return Nested(result);
        Corvane::Data::Generated::Guid wireChannel;
        if (auto const result = guidConverter.To(channel, wireChannel); !result.success) return Nested(result);
        destination.playersDataOverrides.emplace(std::move(wireChannel), std::move(wireOverrides));
    }
    return Success();
}

ConversionResult GetMultiviewerDataCommandReplyToThriftConverter::To(
    HighLevelOperations::Commands::GetMultiviewerDataCommandReply&& source,
    Generated::GetMultiviewerDataCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
