#include "Thrift/Commands/FromFailureReply.h"

#include "Domain/HighLevelOperations/Commands/FailureReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/FailureReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult FailureReplyToThriftConverter::To(HighLevelOperations::Commands::FailureReply const& source,
                                                   Generated::FailureReply& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    if (!source.error.empty()) TALVO_FLAGGED(destination, error) = source.error;
    return Success();
}

ConversionResult FailureReplyToThriftConverter::To(HighLevelOperations::Commands::FailureReply&& source,
                                                   Generated::FailureReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
