#include "Domain/CorvaneData/Notification/ClipDeletionFailedEventArgs.h"

#include <gtest/gtest.h>

namespace Talvo::Corvane::Notification
{
namespace
{

TEST(ClipDeletionFailedEventArgs, DiffersByTheFieldsOfItsBases)
{
    using Source = ClipCommandEventArgs::RequestSource;
    ClipDeletionFailedEventArgs const event(1, Source::Network, 2, 3, Data::Guid(), -4, Data::OperationResult::Success,
                                            -5, {}, 6, 7, 8, true, false);
    auto const expectDifferent = [&](auto const& change)
    {
        auto changed = event;
        EXPECT_EQ(changed, event);
        change(changed);
        EXPECT_NE(changed, event);
    };
    expectDifferent([](auto& changed) { changed.commandGuid = Data::Guid::Generate(); });
    expectDifferent([](auto& changed) { changed.subCommandIndex = 1; });
    expectDifferent([](auto& changed) { changed.reservedByteB = 1; });
    expectDifferent([](auto& changed) { changed.removedClip.userLock = 1; });
    expectDifferent([](auto& changed) { changed.forceForPlaylist = true; });
}

} // namespace
} // namespace Talvo::Corvane::Notification
