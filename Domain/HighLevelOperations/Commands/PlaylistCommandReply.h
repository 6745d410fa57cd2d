#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"
#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"

#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// What became of the playlists of a command. Can be moved, not copied.
struct PlaylistCommandReply : CommandReply
{
    /// That many default items.
    PlaylistCommandReply(Corvane::Data::Guid const& guid, std::size_t count)
        : CommandReply(guid)
        , results(count)
    {
    }

    // A vector claims to be copyable, whatever it holds.
    PlaylistCommandReply(PlaylistCommandReply&&) = default;
    PlaylistCommandReply& operator=(PlaylistCommandReply&&) = default;

    ReplyType GetType() const noexcept override { return ReplyType::Playlist; }

    std::vector<PlaylistResultsItem> results;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
