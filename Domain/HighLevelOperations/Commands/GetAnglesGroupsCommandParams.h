#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests all angles groups.
struct GetAnglesGroupsCommandParams : CommandParams
{
    bool operator==(GetAnglesGroupsCommandParams const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
