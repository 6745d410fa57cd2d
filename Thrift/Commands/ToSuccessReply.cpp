#include "Thrift/Commands/ToSuccessReply.h"

#include "Domain/HighLevelOperations/Commands/SuccessReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/SuccessReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToSuccessReplyConverter::To(Generated::SuccessReply const& source,
                                  HighLevelOperations::Commands::SuccessReply& destination) const noexcept
{
    if (!source.__isset.guid) return Failure("SuccessReply is empty");

    ReadGuid(source.guid, destination.commandGuid);
    return Success();
}

ConversionResult
ThriftToSuccessReplyConverter::To(Generated::SuccessReply&& source,
                                  HighLevelOperations::Commands::SuccessReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
