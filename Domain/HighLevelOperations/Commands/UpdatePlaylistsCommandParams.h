#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the update of playlists.
struct UpdatePlaylistsCommandParams : CommandParams
{
    /// One playlist to update: its old and its new state. The spelling of the name is intended.
    struct UpdatPlaylistsParams
    {
        Corvane::Data::Sequences::Playlist oldPlaylist;
        Corvane::Data::Sequences::Playlist newPlaylist;

        bool operator==(UpdatPlaylistsParams const&) const = default;
    };

    bool operator==(UpdatePlaylistsCommandParams const&) const = default;

    std::vector<UpdatPlaylistsParams> params;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
