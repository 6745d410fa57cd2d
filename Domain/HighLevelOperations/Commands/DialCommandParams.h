#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>
#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Moves players like a jog wheel.
struct DialCommandParams : CommandParams
{
    bool operator==(DialCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> players;
    std::int32_t velocity = 0;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
