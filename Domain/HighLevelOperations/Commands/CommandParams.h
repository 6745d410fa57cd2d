#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The parameters of a command from a client to the server.
struct CommandParams
{
    /// Constructs parameters with a new identifier from Guid::Generate().
    CommandParams();

    CommandParams(CommandParams const&) = default;
    CommandParams(CommandParams&&) = default;
    CommandParams& operator=(CommandParams const&) = default;
    CommandParams& operator=(CommandParams&&) = default;
    virtual ~CommandParams();

    bool operator==(CommandParams const&) const = default;

    Corvane::Data::Guid commandGuid; ///< identifies the command and its reply
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
