#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the deletion of an angles group.
struct DeleteAnglesGroupCommandParams : CommandParams
{
    bool operator==(DeleteAnglesGroupCommandParams const&) const = default;

    Corvane::Data::Clips::Groups::Guid groupGuid;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
