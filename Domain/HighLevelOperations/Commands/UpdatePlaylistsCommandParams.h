#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Asks for playlists to be changed.
struct UpdatePlaylistsCommandParams : CommandParams
{
    /// One playlist to be changed, as it was and as it shall be. The name is spelled so.
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
