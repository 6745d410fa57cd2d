#pragma once

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Moves players to the position of another player.
struct SyncCommandParams : CommandParams
{
    bool operator==(SyncCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> players;
    Corvane::Data::Channels::Guid sourcePlayer;
    Corvane::Data::Channels::Boundary inBoundary;
    Corvane::Data::Channels::Boundary outBoundary;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
