#pragma once

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"
#include "TimePoints/TimePoint.h"

#include <unordered_map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Makes each player continue with a clip.
struct ChainCommandParams : CommandParams
{
    bool operator==(ChainCommandParams const&) const = default;

    std::unordered_map<Corvane::Data::Channels::Guid, Corvane::Data::Clips::Guid> players;
    TimePoints::TimePoint timepoint;
    Corvane::Data::Channels::Boundary inBoundary;
    Corvane::Data::Channels::Boundary outBoundary;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
