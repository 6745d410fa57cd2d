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

/// All clips, read once through a cursor: MoveNext() goes before the first read. Copies share the items and have a cursor
/// of their own. Reading moves the cursor, so one object belongs to one thread.
class GetClipsCommandReply : public CommandReply
{
public:
    /// Answers that command with those items.
    GetClipsCommandReply(Corvane::Data::Guid const& guid, long long revisionNumber,
                         std::list<Corvane::Data::Clips::Clip>&& items)
        : CommandReply(guid)
        , revision(revisionNumber)
        , items_(std::move(items))
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::GetClips; }

    /// Goes on to the next item, and tells whether there is one.
    bool MoveNext() const noexcept { return items_.MoveNext(); }

    /// The item that the last MoveNext() went on to.
    Corvane::Data::Clips::Clip const& CurrentClip() const { return items_.Current(); }

    /// How many items MoveNext() still has to give.
    std::size_t RemainingCount() const noexcept { return items_.RemainingCount(); }

    std::int64_t revision; ///< of the server's database

private:
    ItemCursor<Corvane::Data::Clips::Clip> items_;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
