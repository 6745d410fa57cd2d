#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Notification
{

/// Base of events that report the progress of a command.
struct CommandEventArgs
{
    /// Constructs the event of the command with that identifier.
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
