#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/CorvaneData/Optional.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests other primary or secondary angles for a group.
struct UpdateAnglesGroupCommandParams : CommandParams
{
    bool operator==(UpdateAnglesGroupCommandParams const&) const = default;

    Corvane::Data::Clips::Groups::Guid groupGuid;
    Corvane::Data::Optional<Corvane::Data::Clips::Guid> primaryAngle;
    Corvane::Data::Optional<Corvane::Data::Clips::Guid> secondaryAngle;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
