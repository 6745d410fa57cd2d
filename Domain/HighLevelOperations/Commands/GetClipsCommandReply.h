#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"
#include "Domain/HighLevelOperations/Commands/ItemCursor.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <utility>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// All clips, read once through a cursor: call MoveNext() before reading the first item. Copies share the items but
/// have their own cursor. Reading moves the cursor, so an object must not be shared between threads.
class GetClipsCommandReply : public CommandReply
{
public:
    /// Constructs a reply to that command with those items.
    GetClipsCommandReply(Corvane::Data::Guid const& guid, long long revisionNumber,
                         std::list<Corvane::Data::Clips::Clip>&& items)
        : CommandReply(guid)
        , revision(revisionNumber)
        , items_(std::move(items))
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::GetClips; }

    /// Moves to the next item and returns whether there is one.
    bool MoveNext() const noexcept { return items_.MoveNext(); }

    /// The item that the last MoveNext() moved to.
    Corvane::Data::Clips::Clip const& CurrentClip() const { return items_.Current(); }

    /// The number of items that MoveNext() has not yet reached.
    std::size_t RemainingCount() const noexcept { return items_.RemainingCount(); }

    std::int64_t revision; ///< the revision of the server's database

private:
    ItemCursor<Corvane::Data::Clips::Clip> items_;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
