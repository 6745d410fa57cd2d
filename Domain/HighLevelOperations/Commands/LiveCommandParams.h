#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <unordered_map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Makes each player follow another player.
struct LiveCommandParams : CommandParams
{
    bool operator==(LiveCommandParams const&) const = default;

    std::unordered_map<Corvane::Data::Channels::Guid, Corvane::Data::Channels::Guid> players{10};
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
