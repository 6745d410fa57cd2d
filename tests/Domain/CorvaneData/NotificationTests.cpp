#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipDeletionFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipDeletionFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipMoveFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipMoveFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipUpdateFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipUpdateFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipDeletionFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipUpdateFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/RecordingRangesChangedEventArgs.h"
#include "Domain/CorvaneData/Notification/ServerAddedEventArgs.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace Talvo::Corvane::Notification
{
namespace
{

/// Returns whether the events derive from the base and can be deleted through it.
template<typename TBase, typename... TEvents>
constexpr bool AreEach = std::has_virtual_destructor_v<TBase> && (std::is_base_of_v<TBase, TEvents> && ...);

static_assert(AreEach<System::EventArgs, StatusEventArgs>);
static_assert(AreEach<StatusEventArgs, ClipStatusEventArgs, ServerStatusEventArgs>);
static_assert(AreEach<ClipStatusEventArgs, RecordingRangesChangedEventArgs>);
static_assert(AreEach<ServerStatusEventArgs, ServerAddedEventArgs>);
static_assert(AreEach<CommandEventArgs, ClipCommandEventArgs>);
static_assert(AreEach<ClipCommandEventArgs, ClipCreationEventArgs, ClipUpdateEventArgs, MassClipUpdateEventArgs,
                      ClipDeletionEventArgs, MassClipDeletionEventArgs, ClipMoveEventArgs, AnglesGroupCreationEventArgs,
                      AnglesGroupDeletionEventArgs, AnglesGroupUpdateEventArgs>);
static_assert(AreEach<ClipCreationEventArgs, ClipCreationFinishedEventArgs, ClipCreationFailedEventArgs>);
static_assert(AreEach<ClipUpdateEventArgs, ClipUpdateFinishedEventArgs, ClipUpdateFailedEventArgs>);
static_assert(AreEach<MassClipUpdateEventArgs, MassClipUpdateFailedEventArgs>);
static_assert(AreEach<ClipDeletionEventArgs, ClipDeletionFinishedEventArgs, ClipDeletionFailedEventArgs>);
static_assert(AreEach<MassClipDeletionEventArgs, MassClipDeletionFailedEventArgs>);
static_assert(AreEach<ClipMoveEventArgs, ClipMoveFinishedEventArgs, ClipMoveFailedEventArgs>);
static_assert(AreEach<AnglesGroupDeletionEventArgs, AnglesGroupDeletionFinishedEventArgs>);
static_assert(AreEach<AnglesGroupUpdateEventArgs, AnglesGroupUpdateFinishedEventArgs>);

ClipDeletionFailedEventArgs Event()
{
    return {1,
            ClipCommandEventArgs::RequestSource::Network,
            2,
            3,
            Data::Guid(),
            -4,
            Data::OperationResult::Success,
            -5,
            {},
            6,
            7,
            8,
            true,
            false};
}

TEST(ClipDeletionFailedEventArgs, DiffersByTheFieldsOfItsBases)
{
    auto const expectDifferent = [](auto const& change)
    {
        auto event = Event();
        EXPECT_EQ(event, Event());
        change(event);
        EXPECT_NE(event, Event());
    };
    expectDifferent([](auto& event) { event.commandGuid = Data::Guid::Generate(); });
    expectDifferent([](auto& event) { event.subCommandIndex = 1; });
    expectDifferent([](auto& event) { event.reservedByteB = 1; });
    expectDifferent([](auto& event) { event.removedClip.userLock = 1; });
    expectDifferent([](auto& event) { event.forceForPlaylist = true; });
}

} // namespace
} // namespace Talvo::Corvane::Notification
