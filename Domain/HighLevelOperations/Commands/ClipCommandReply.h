#pragma once

#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// What became of the clips of a command. Can be moved, not copied.
struct ClipCommandReply : CommandReply
{
    /// That many default items.
    ClipCommandReply(Corvane::Data::Guid const& guid, std::size_t count)
        : CommandReply(guid)
        , results(count)
    {
    }

    // A vector claims to be copyable, whatever it holds.
    ClipCommandReply(ClipCommandReply&&) = default;
    ClipCommandReply& operator=(ClipCommandReply&&) = default;

    ReplyType GetType() const noexcept override { return ReplyType::Clip; }

    std::vector<ClipResultsItem> results;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
