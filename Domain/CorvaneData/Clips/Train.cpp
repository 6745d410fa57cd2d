#include "Domain/CorvaneData/Clips/Train.h"

#include <type_traits>
#include <utility>

namespace Talvo::Corvane::Data::Clips
{

static_assert(!std::is_copy_constructible_v<Train>);
static_assert(std::is_nothrow_move_constructible_v<Train> && std::is_nothrow_move_assignable_v<Train>);

Train::Train(std::unique_ptr<Clip>&& clip, std::vector<RecordingRange>&& ranges, bool inMoving, bool outMoving,
             TimePoints::TimeCode&& lastTimeCode) noexcept
    : trainClip(std::move(clip))
    , trainRanges(std::move(ranges))
    , isInMoving(inMoving)
    , isOutMoving(outMoving)
    , lastKnownTimeCode(lastTimeCode)
{
}

} // namespace Talvo::Corvane::Data::Clips
