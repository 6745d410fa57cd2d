#pragma once

#include "Domain/CorvaneData/Sequences/Guid.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Asks for playlists.
struct GetPlaylistsCommandParams : CommandParams
{
    /// How the elements of the playlists are given. The numbers are those of the wire's `ElementConversionMode`.
    enum class ElementMode : std::int32_t
    {
        Lazy = 0,
        Normal = 1,
        OnlyRelative = 2
    };

    bool operator==(GetPlaylistsCommandParams const&) const = default;

    ElementMode elementMode = ElementMode::Lazy;
    Corvane::Data::Sequences::Guid idFilter; ///< Guid::Empty() asks for all
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
