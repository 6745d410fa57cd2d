#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <map>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The overrides of the multiviewer.
struct GetMultiviewerDataCommandReply : CommandReply
{
    ReplyType GetType() const noexcept override { return ReplyType::GetMultiviewerData; }

    /// Whether all fields are equal.
    bool operator==(GetMultiviewerDataCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && playersDataOverrides == other.playersDataOverrides &&
               operationStatus == other.operationStatus;
    }

    std::map<Corvane::Data::Channels::Guid, Multiviewer::PlayerDataOverrides> playersDataOverrides;
    Corvane::Data::OperationStatus operationStatus;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
