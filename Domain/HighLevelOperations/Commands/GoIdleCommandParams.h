#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Stops players.
struct GoIdleCommandParams : CommandParams
{
    bool operator==(GoIdleCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> players;
    bool setBlackScreen = false;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
