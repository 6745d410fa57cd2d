#pragma once

#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The results of the clips of a command. It can be moved but not copied.
struct ClipCommandReply : CommandReply
{
    /// Constructs a reply with `count` default items.
    ClipCommandReply(Corvane::Data::Guid const& guid, std::size_t count)
        : CommandReply(guid)
        , results(count)
    {
    }

    // Declared because a vector claims to be copyable even if its elements are not.
    ClipCommandReply(ClipCommandReply&&) = default;
    ClipCommandReply& operator=(ClipCommandReply&&) = default;

    ReplyType GetType() const noexcept override { return ReplyType::Clip; }

    std::vector<ClipResultsItem> results;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
