#pragma once

#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests all clips.
struct GetClipsCommandParams : CommandParams
{
    bool operator==(GetClipsCommandParams const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
