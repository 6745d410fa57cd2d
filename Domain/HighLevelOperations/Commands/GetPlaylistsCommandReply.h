#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The requested playlists.
struct GetPlaylistsCommandReply : CommandReply
{
    /// Constructs a reply to that command with those items.
    GetPlaylistsCommandReply(Corvane::Data::Guid const& guid, long long revisionNumber,
                             std::vector<Corvane::Data::Sequences::Playlist>&& items)
        : CommandReply(guid)
        , revision(revisionNumber)
        , playlists(std::move(items))
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::GetPlaylists; }

    /// Whether all fields are equal.
    bool operator==(GetPlaylistsCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && revision == other.revision && playlists == other.playlists;
    }

    std::int64_t revision; ///< the revision of the server's database
    std::vector<Corvane::Data::Sequences::Playlist> playlists;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
