#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>
#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Moves players by a number of fields.
struct StepCommandParams : CommandParams
{
    bool operator==(StepCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> players;
    std::int32_t fieldCount = 0; ///< negative: backward
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
