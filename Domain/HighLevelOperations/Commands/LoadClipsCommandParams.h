#pragma once

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"
#include "TimePoints/TimePoint.h"

#include <unordered_map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Loads a clip into each player.
struct LoadClipsCommandParams : CommandParams
{
    /// The parameters of one player.
    struct PlayerParam
    {
        Corvane::Data::Clips::Guid clip;
        TimePoints::TimePoint timepoint;
        Corvane::Data::Channels::Boundary inBoundary;
        Corvane::Data::Channels::Boundary outBoundary;

        bool operator==(PlayerParam const&) const = default;
    };

    bool operator==(LoadClipsCommandParams const&) const = default;

    std::unordered_map<Corvane::Data::Channels::Guid, PlayerParam> playersParameters;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
