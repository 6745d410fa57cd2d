#include "Thrift/Commands/ToClipCommandReply.h"

#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Thrift/Commands/ToClipResultsItem.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipCommandReply_types.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;

ConversionResult
ThriftToClipCommandReplyConverter::ToOrThrow(Generated::ClipCommandReply const& source,
                                             HighLevelOperations::Commands::ClipCommandReply& destination) const
{
    ThriftToClipResultsItemConverter const toItem;

    if (!source.__isset.guid || !source.__isset.results) return Failure("ClipCommandReply is empty");

    destination = {ReadGuidAs<Corvane::Data::Guid>(source.guid), source.results.size()};
    for (std::size_t i = 0; i < source.results.size(); ++i)
    {
        // An item that fails stays as it starts.
        auto& item = destination.results[i];
        item.OperationStatus({OperationStatus::Status::Failed, OperationResult::DefaultError});
        std::ignore = Read({"results", i}, toItem, source.results[i], item);
    }
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
