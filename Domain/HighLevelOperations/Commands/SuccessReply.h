#pragma once

#include "Domain/HighLevelOperations/Commands/CommandReply.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The reply to a command that succeeded.
struct SuccessReply : CommandReply
{
    ReplyType GetType() const noexcept override { return ReplyType::Success; }

    /// Whether all fields are equal.
    bool operator==(SuccessReply const& other) const { return commandGuid == other.commandGuid; }
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
