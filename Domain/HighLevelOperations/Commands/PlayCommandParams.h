#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>
#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Starts players at a speed, given as a fraction of normal speed.
struct PlayCommandParams : CommandParams
{
    bool operator==(PlayCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> players;
    std::int32_t speedNumerator = 0;
    std::int32_t speedDenominator = 1;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
