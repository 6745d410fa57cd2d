#pragma once

#include "Domain/CorvaneData/Guid.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// What a client asks of the server.
struct CommandParams
{
    /// With a new identifier, from Guid::Generate().
    CommandParams();

    CommandParams(CommandParams const&) = default;
    CommandParams(CommandParams&&) = default;
    CommandParams& operator=(CommandParams const&) = default;
    CommandParams& operator=(CommandParams&&) = default;
    virtual ~CommandParams();

    bool operator==(CommandParams const&) const = default;

    Corvane::Data::Guid commandGuid; ///< identifies the command, and its reply
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
