#pragma once

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Multiviewer
{

/// The overrides of all players of a multiviewer, whose number is fixed when it is built.
class MultiviewerDataOverrides
{
public:
    /// That many entries, each without any override.
    explicit MultiviewerDataOverrides(std::uint32_t count);

    /// The entry of that player. Nothing is checked: `index` is below `playerCount`.
    PlayerDataOverrides& operator[](unsigned int const index) noexcept { return players_[index]; }
    /// The entry of that player, as above.
    PlayerDataOverrides const& operator[](unsigned int const index) const noexcept { return players_[index]; }

    bool operator==(MultiviewerDataOverrides const&) const = default;

    std::uint32_t playerCount; ///< read only: the number of entries does not follow it

private:
    std::vector<PlayerDataOverrides> players_;
};

} // namespace Talvo::Corvane::Multiviewer
