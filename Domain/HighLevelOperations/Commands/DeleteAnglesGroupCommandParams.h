#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Asks for an angles group to be deleted.
struct DeleteAnglesGroupCommandParams : CommandParams
{
    bool operator==(DeleteAnglesGroupCommandParams const&) const = default;

    Corvane::Data::Clips::Groups::Guid groupGuid;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
