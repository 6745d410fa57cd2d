#include "Thrift/Commands/FromAnglesGroupCommandReply.h"

#include "Domain/HighLevelOperations/Commands/AnglesGroupCommandReply.h"
#include "Thrift/Commands/FromClipCommandReply.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/AnglesGroupCommandReply_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
AnglesGroupCommandReplyToThriftConverter::To(HighLevelOperations::Commands::AnglesGroupCommandReply const& source,
                                             Generated::AnglesGroupCommandReply& destination) const noexcept
{
    Data::OperationStatusToThriftConverter const fromStatus;
    ClipCommandReplyToThriftConverter const fromClipCommandReply;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    // The identifier of the command is written again instead of the group's. Peers rely on this.
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, groupGuid));
    std::ignore = fromStatus.To(source.operationStatus, TALVO_FLAGGED(destination, operationStatus));
    std::ignore = fromClipCommandReply.To(source.clipCommandReply, TALVO_FLAGGED(destination, clipCommandReply));
    return Success();
}

ConversionResult
AnglesGroupCommandReplyToThriftConverter::To(HighLevelOperations::Commands::AnglesGroupCommandReply&& source,
                                             Generated::AnglesGroupCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
