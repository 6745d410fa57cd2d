#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Domain/HighLevelOperations/Commands/CommandParams.h"

#include <map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Sets the overrides of the multiviewer.
struct SetMultiviewerDataCommandParams : CommandParams
{
    bool operator==(SetMultiviewerDataCommandParams const&) const = default;

    std::map<Corvane::Data::Channels::Guid, Multiviewer::PlayerDataOverrides> playersDataOverrides;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
