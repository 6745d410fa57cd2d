#include "Thrift/Commands/FromUnknownCommandReply.h"

#include "Domain/HighLevelOperations/Commands/UnknownCommandReply.h"
#include "Thrift/Detail/Results.h"
#include "generated/UnknownCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
UnknownCommandReplyToThriftConverter::To(HighLevelOperations::Commands::UnknownCommandReply const& source,
                                         Generated::UnknownCommandReply& destination) const noexcept
{
    // The identifier is not written, and the flag is unchanged.
    destination.__set_commandType(source.commandType);
    return Success();
}

ConversionResult UnknownCommandReplyToThriftConverter::To(HighLevelOperations::Commands::UnknownCommandReply&& source,
                                                          Generated::UnknownCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
