#pragma once

#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <string>
#include <utility>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The reply to a command that the server does not know.
struct UnknownCommandReply : CommandReply
{
    /// Constructs a reply to that command; `text` becomes `commandType`.
    UnknownCommandReply(Corvane::Data::Guid const& guid, std::string text)
        : CommandReply(guid)
        , commandType(std::move(text))
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::Unknown; }

    /// Whether all fields are equal.
    bool operator==(UnknownCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && commandType == other.commandType;
    }

    std::string commandType; ///< as the server received it
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
