#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <string>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the creation of clips.
struct CreateClipsCommandParams : CommandParams
{
    /// One clip to create.
    struct CreateClipParams
    {
        Corvane::Data::Clips::Guid sourceId{std::string()};
        Corvane::Data::Clips::Clip clip;
        bool setTimecodes = false;

        bool operator==(CreateClipParams const&) const = default;
    };

    bool operator==(CreateClipsCommandParams const&) const = default;

    std::vector<CreateClipParams> clips;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
