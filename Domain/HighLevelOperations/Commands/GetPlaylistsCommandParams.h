#pragma once

#include "Domain/CorvaneData/Sequences/Guid.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests playlists.
struct GetPlaylistsCommandParams : CommandParams
{
    /// How the playlists' elements are returned. The numbers are those of `ElementConversionMode` on the wire.
    enum class ElementMode : std::int32_t
    {
        Lazy = 0,
        Normal = 1,
        OnlyRelative = 2
    };

    bool operator==(GetPlaylistsCommandParams const&) const = default;

    ElementMode elementMode = ElementMode::Lazy;
    Corvane::Data::Sequences::Guid idFilter; ///< Guid::Empty() requests all
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
