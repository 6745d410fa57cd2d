#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the update of clips.
struct UpdateClipsCommandParams : CommandParams
{
    /// One clip to update: its old and its new state.
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
