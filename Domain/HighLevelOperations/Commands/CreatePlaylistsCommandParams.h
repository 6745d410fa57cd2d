#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the creation of playlists.
struct CreatePlaylistsCommandParams : CommandParams
{
    bool operator==(CreatePlaylistsCommandParams const&) const = default;

    std::vector<Corvane::Data::Sequences::Playlist> playlists;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
