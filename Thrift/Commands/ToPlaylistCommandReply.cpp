#include "Thrift/Commands/ToPlaylistCommandReply.h"

#include "Domain/HighLevelOperations/Commands/PlaylistCommandReply.h"
#include "Thrift/Commands/ToPlaylistResultsItem.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlaylistCommandReply_types.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;

ConversionResult
ThriftToPlaylistCommandReplyConverter::ToOrThrow(Generated::PlaylistCommandReply const& source,
                                                 HighLevelOperations::Commands::PlaylistCommandReply& destination) const
{
    ThriftToPlaylistResultsItemConverter const toItem;

    if (!source.__isset.guid || !source.__isset.results) return Failure("PlaylistCommandReply is empty");

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

ConversionResult ThriftToPlaylistCommandReplyConverter::To(
    Generated::PlaylistCommandReply const& source,
    HighLevelOperations::Commands::PlaylistCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToPlaylistCommandReplyConverter::To(
    Generated::PlaylistCommandReply&& source,
    HighLevelOperations::Commands::PlaylistCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
