#include "Thrift/Commands/ToClipCommandReply.h"

#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Thrift/Commands/Results.h"
#include "Thrift/Commands/ToClipResultsItem.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToClipCommandReplyConverter::ToOrThrow(Generated::ClipCommandReply const& source,
                                             HighLevelOperations::Commands::ClipCommandReply& destination) const
{
    ThriftToClipResultsItemConverter const toItem;

    if (!source.__isset.guid || !source.__isset.results) return Failure("ClipCommandReply is empty");

    ReadResults(toItem, source, destination);
    return Success();
}

ConversionResult
ThriftToClipCommandReplyConverter::To(Generated::ClipCommandReply const& source,
                                      HighLevelOperations::Commands::ClipCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipCommandReplyConverter::To(Generated::ClipCommandReply&& source,
                                      HighLevelOperations::Commands::ClipCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
