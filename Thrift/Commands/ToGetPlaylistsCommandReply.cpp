#include "Thrift/Commands/ToGetPlaylistsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetPlaylistsCommandReply_types.h"

#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetPlaylistsCommandReplyConverter::ToOrThrow(
    Generated::GetPlaylistsCommandReply const& source,
    HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const
{
    Data::Sequences::ThriftToPlaylistConverter const toPlaylist;
    auto const& isset = source.__isset;

    auto const guid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    std::vector<Corvane::Data::Sequences::Playlist> playlists;
    if (isset.playlists)
    {
        if (auto const result = AppendEach("playlists", toPlaylist, source.playlists, playlists); !result.success)
            return Nested(result);
    }
    // The revision counts here, and a missing revision is -1.
    destination = {guid, isset.revision ? source.revision : -1, std::move(playlists)};
    return isset.guid || isset.revision || isset.playlists ? Success() : Failure("GetPlaylistsCommandReply is empty");
}

ConversionResult ThriftToGetPlaylistsCommandReplyConverter::To(
    Generated::GetPlaylistsCommandReply const& source,
    HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToGetPlaylistsCommandReplyConverter::To(
    Generated::GetPlaylistsCommandReply&& source,
    HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
