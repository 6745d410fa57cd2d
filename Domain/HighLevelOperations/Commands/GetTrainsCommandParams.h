#pragma once

#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests all trains.
struct GetTrainsCommandParams : CommandParams
{
    bool operator==(GetTrainsCommandParams const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
