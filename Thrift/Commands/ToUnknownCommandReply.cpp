#include "Thrift/Commands/ToUnknownCommandReply.h"

#include "Domain/HighLevelOperations/Commands/UnknownCommandReply.h"
#include "Thrift/Detail/Results.h"
#include "generated/UnknownCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToUnknownCommandReplyConverter::To(Generated::UnknownCommandReply const& source,
                                         HighLevelOperations::Commands::UnknownCommandReply& destination) const noexcept
{
    destination.commandGuid = Corvane::Data::Guid::Empty();
    destination.commandType = source.commandType; // regardless of the flag
    return Success();
}

ConversionResult
ThriftToUnknownCommandReplyConverter::To(Generated::UnknownCommandReply&& source,
                                         HighLevelOperations::Commands::UnknownCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
