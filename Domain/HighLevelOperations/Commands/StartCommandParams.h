#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_set>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Starts recorders. Its name on the wire is `StartRecordingCommandParams`.
struct StartCommandParams : CommandParams
{
    bool operator==(StartCommandParams const&) const = default;

    std::unordered_set<Corvane::Data::Channels::Guid> recorders;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
