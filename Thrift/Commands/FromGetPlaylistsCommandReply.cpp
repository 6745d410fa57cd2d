#include "Thrift/Commands/FromGetPlaylistsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetPlaylistsCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetPlaylistsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetPlaylistsCommandReply const& source,
                                              Generated::GetPlaylistsCommandReply& destination) const noexcept
{
    Data::Sequences::PlaylistToThriftConverter const fromPlaylist;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    TALVO_FLAGGED(destination, revision) = source.revision;
    if (auto const result = AppendEach("playlists", fromPlaylist, source.playlists, destination.playlists);
        !result.success)
        return Nested(result);
    if (!source.playlists.empty()) destination.__isset.playlists = true;
    return Success();
}

ConversionResult
GetPlaylistsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetPlaylistsCommandReply&& source,
                                              Generated::GetPlaylistsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
