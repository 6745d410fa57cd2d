#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Notification
{

/// What became of a command.
struct CommandEventArgs
{
    /// Of the command with that identifier.
    explicit CommandEventArgs(Data::Guid const& guid)
        : commandGuid(guid)
    {
    }

    CommandEventArgs(CommandEventArgs const&) = default;
    CommandEventArgs(CommandEventArgs&&) = default;
    CommandEventArgs& operator=(CommandEventArgs const&) = default;
    CommandEventArgs& operator=(CommandEventArgs&&) = default;
    virtual ~CommandEventArgs() = default;

    bool operator==(CommandEventArgs const&) const = default;

    Data::Guid commandGuid;
};

} // namespace Talvo::Corvane::Notification
