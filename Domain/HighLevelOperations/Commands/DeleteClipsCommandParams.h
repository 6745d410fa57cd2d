#pragma once

#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the deletion of clips.
struct DeleteClipsCommandParams : CommandParams
{
    bool operator==(DeleteClipsCommandParams const&) const = default;

    std::vector<Corvane::Data::Clips::Guid> clips;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
