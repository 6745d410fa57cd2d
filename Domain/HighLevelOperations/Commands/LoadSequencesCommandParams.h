#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Sequences/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <cstdint>
#include <unordered_map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Loads a sequence into each player.
struct LoadSequencesCommandParams : CommandParams
{
    /// The parameters of one player.
    struct PlayerParam
    {
        Corvane::Data::Sequences::Guid sequence;
        std::int64_t durationFromBeginning = 0;
        bool isForDiffusion = false;

        bool operator==(PlayerParam const&) const = default;
    };

    bool operator==(LoadSequencesCommandParams const&) const = default;

    std::unordered_map<Corvane::Data::Channels::Guid, PlayerParam> playersParameters;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
