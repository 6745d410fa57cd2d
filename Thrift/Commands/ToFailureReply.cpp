#include "Thrift/Commands/ToFailureReply.h"

#include "Domain/HighLevelOperations/Commands/FailureReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/FailureReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToFailureReplyConverter::To(Generated::FailureReply const& source,
                                  HighLevelOperations::Commands::FailureReply& destination) const noexcept
{
    auto const& isset = source.__isset;
    SeenFields seen;

    // An identifier resets the destination, so its text is lost.
    if (seen(isset.guid)) destination = {ReadGuidAs<Corvane::Data::Guid>(source.guid), ""};
    if (seen(isset.error)) destination.error = source.error;
    return seen.None() ? Failure("FailureReply is empty") : Success();
}

ConversionResult
ThriftToFailureReplyConverter::To(Generated::FailureReply&& source,
                                  HighLevelOperations::Commands::FailureReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
