#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Stops recorders. Its name on the wire is `StopRecordingCommandParams`.
struct StopCommandParams : CommandParams
{
    bool operator==(StopCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> recorders;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
