#pragma once

#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the overrides of the multiviewer.
struct GetMultiviewerDataCommandParams : CommandParams
{
    bool operator==(GetMultiviewerDataCommandParams const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
