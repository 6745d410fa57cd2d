#pragma once

#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// Requests the states of all channels.
struct GetChannelsCommandParams : CommandParams
{
    bool operator==(GetChannelsCommandParams const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
