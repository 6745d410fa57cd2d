#include "Thrift/Commands/FromSuccessReply.h"

#include "Domain/HighLevelOperations/Commands/SuccessReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/SuccessReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult SuccessReplyToThriftConverter::To(HighLevelOperations::Commands::SuccessReply const& source,
                                                   Generated::SuccessReply& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    return Success();
}

ConversionResult SuccessReplyToThriftConverter::To(HighLevelOperations::Commands::SuccessReply&& source,
                                                   Generated::SuccessReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
