#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Asks for clips to be changed.
struct UpdateClipsCommandParams : CommandParams
{
    /// One clip to be changed, as it was and as it shall be.
    struct UpdateClipParams
    {
        Corvane::Data::Clips::Clip oldClip;
        Corvane::Data::Clips::Clip newClip;

        bool operator==(UpdateClipParams const&) const = default;
    };

    bool operator==(UpdateClipsCommandParams const&) const = default;

    std::vector<UpdateClipParams> clips;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
