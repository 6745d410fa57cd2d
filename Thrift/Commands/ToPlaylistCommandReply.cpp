#include "Thrift/Commands/ToPlaylistCommandReply.h"

#include "Domain/HighLevelOperations/Commands/PlaylistCommandReply.h"
#include "Thrift/Commands/Results.h"
#include "Thrift/Commands/ToPlaylistResultsItem.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlaylistCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToPlaylistCommandReplyConverter::ToOrThrow(Generated::PlaylistCommandReply const& source,
                                                 HighLevelOperations::Commands::PlaylistCommandReply& destination) const
{
    ThriftToPlaylistResultsItemConverter const toItem;

    if (!source.__isset.guid || !source.__isset.results) return Failure("PlaylistCommandReply is empty");

    ReadResults(toItem, source, destination);
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
