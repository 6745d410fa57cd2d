#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The result of a command on an angles group and its clips. It can be moved but not copied.
struct AnglesGroupCommandReply : CommandReply
{
    /// Constructs a reply with a default status and a nested reply without clips for the same command.
    AnglesGroupCommandReply(Corvane::Data::Guid const& guid, Corvane::Data::Clips::Groups::Guid const& group)
        : CommandReply(guid)
        , groupGuid(group)
        , clipCommandReply(guid, 0)
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::AnglesGroup; }

    Corvane::Data::Clips::Groups::Guid groupGuid;
    Corvane::Data::OperationStatus operationStatus;
    ClipCommandReply clipCommandReply;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
