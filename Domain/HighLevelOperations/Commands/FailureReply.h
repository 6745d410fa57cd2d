#pragma once

#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <string>
#include <utility>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The reply to a command that was rejected.
struct FailureReply : CommandReply
{
    /// Constructs a reply to that command with that text.
    FailureReply(Corvane::Data::Guid const& guid, std::string text)
        : CommandReply(guid)
        , error(std::move(text))
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::Failure; }

    /// Whether all fields are equal.
    bool operator==(FailureReply const& other) const
    {
        return commandGuid == other.commandGuid && error == other.error;
    }

    std::string error; ///< why
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
