#include "Thrift/Commands/ToGetMultiviewerDataCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/PlayersDataOverrides.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetMultiviewerDataCommandReply_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::GetMultiviewerDataCommandReply;

ConversionResult ThriftToGetMultiviewerDataCommandReplyConverter::To(
    Generated::GetMultiviewerDataCommandReply const& source,
    HighLevelOperations::Commands::GetMultiviewerDataCommandReply& destination) const noexcept
{
    static Data::ThriftToGuidConverter const toGuid;
    static Data::ThriftToOperationStatusConverter const toOperationStatus;

    GetMultiviewerDataCommandReply reply;
    if (auto const result = Read("guid", toGuid, source.guid, reply.commandGuid); !result.success)
        return Nested(result);
    if (auto const result = Read("status", toOperationStatus, source.status, reply.operationStatus); !result.success)
        return Nested(result);
    // Stored before the entries are read: if an entry fails, the destination holds only the new status.
    destination.operationStatus = reply.operationStatus;
    if (auto const result = ReadOverrides(source.playersDataOverrides, reply.playersDataOverrides); !result.success)
        return Nested(result);
    destination = std::move(reply);
    return Success();
}

ConversionResult ThriftToGetMultiviewerDataCommandReplyConverter::To(
    Generated::GetMultiviewerDataCommandReply&& source,
    HighLevelOperations::Commands::GetMultiviewerDataCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
