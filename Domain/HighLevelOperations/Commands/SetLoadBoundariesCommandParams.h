#pragma once

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Sets the start and end of the loads of players.
struct SetLoadBoundariesCommandParams : CommandParams
{
    /// The parameters of one player.
    struct PlayerParam
    {
        Corvane::Data::Channels::Boundary inBoundary;
        Corvane::Data::Channels::Boundary outBoundary;

        bool operator==(PlayerParam const&) const = default;
    };

    bool operator==(SetLoadBoundariesCommandParams const&) const = default;

    std::unordered_map<Corvane::Data::Channels::Guid, PlayerParam> playersParameters;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
