#pragma once

#include "Domain/CorvaneData/Sequences/Guid.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the deletion of playlists.
struct DeletePlaylistsCommandParams : CommandParams
{
    bool operator==(DeletePlaylistsCommandParams const&) const = default;

    std::vector<Corvane::Data::Sequences::Guid> playlists;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
