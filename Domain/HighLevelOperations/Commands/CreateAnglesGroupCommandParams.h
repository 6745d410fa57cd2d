#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the creation of an angles group with its clips.
struct CreateAnglesGroupCommandParams : CommandParams
{
    bool operator==(CreateAnglesGroupCommandParams const&) const = default;

    std::int32_t groupKviIndex = 0;
    CreateClipsCommandParams creationParams; ///< has its own identifier
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
