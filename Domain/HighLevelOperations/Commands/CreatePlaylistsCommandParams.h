#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Asks for playlists to be created.
struct CreatePlaylistsCommandParams : CommandParams
{
    bool operator==(CreatePlaylistsCommandParams const&) const = default;

    std::vector<Corvane::Data::Sequences::Playlist> playlists;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
