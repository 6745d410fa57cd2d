#include "Thrift/Commands/FromGetMultiviewerDataCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/PlayersDataOverrides.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromOperationStatus.h"
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

    if (auto const result = guidConverter.To(source.commandGuid, destination.guid); !result.success)
        return Nested(result);
    if (auto const result = fromStatus.To(source.operationStatus, destination.status); !result.success)
        return Nested(result);
    return SendOverrides(source.playersDataOverrides, [&](Corvane::Data::Generated::Guid&& channel,
                                                          Corvane::Data::Generated::PlayerDataOverrides&& overrides)
                         { destination.playersDataOverrides.emplace(std::move(channel), std::move(overrides)); });
}

ConversionResult GetMultiviewerDataCommandReplyToThriftConverter::To(
    HighLevelOperations::Commands::GetMultiviewerDataCommandReply&& source,
    Generated::GetMultiviewerDataCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
