#pragma once

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Multiviewer
{

/// The overrides of all players of a multiviewer. The number of players is fixed at construction.
class MultiviewerDataOverrides
{
public:
    /// Constructs `count` entries without overrides.
    explicit MultiviewerDataOverrides(std::uint32_t count);

    /// The entry of a player. `index` is not checked; it must be below `playerCount`.
    PlayerDataOverrides& operator[](unsigned int const index) noexcept { return players_[index]; }
    /// The entry of a player. `index` is not checked; it must be below `playerCount`.
    PlayerDataOverrides const& operator[](unsigned int const index) const noexcept { return players_[index]; }

    bool operator==(MultiviewerDataOverrides const&) const = default;

    std::uint32_t playerCount; ///< read only; changing it does not change the number of entries

private:
    std::vector<PlayerDataOverrides> players_;
};

} // namespace Talvo::Corvane::Multiviewer
