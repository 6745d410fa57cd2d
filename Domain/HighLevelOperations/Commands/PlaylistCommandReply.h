#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"
#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"

#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The results of the playlists of a command. It can be moved but not copied.
struct PlaylistCommandReply : CommandReply
{
    /// Constructs a reply with `count` default items.
    PlaylistCommandReply(Corvane::Data::Guid const& guid, std::size_t count)
        : CommandReply(guid)
        , results(count)
    {
    }

    // Declared because a vector claims to be copyable even if its elements are not.
    PlaylistCommandReply(PlaylistCommandReply&&) = default;
    PlaylistCommandReply& operator=(PlaylistCommandReply&&) = default;

    ReplyType GetType() const noexcept override { return ReplyType::Playlist; }

    std::vector<PlaylistResultsItem> results;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
