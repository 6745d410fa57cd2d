#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/OperationStatus.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The result of a command on one channel.
struct ChannelResult
{
    Corvane::Data::Channels::Guid channel;
    Corvane::Data::OperationStatus operationStatus;

    bool operator==(ChannelResult const&) const = default;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
