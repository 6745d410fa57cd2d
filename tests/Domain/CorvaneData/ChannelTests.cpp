#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"

#include <gtest/gtest.h>

namespace Talvo::Corvane
{
namespace
{

using namespace Data::Channels;
using Multiviewer::MultiviewerDataOverrides;
using Multiviewer::PlayerDataOverrides;

// Every comparison of states depends on this, including those of the round trips.
template<typename TState>
void ExpectComparesItsBase()
{
    TState const state;
    auto other = state;
    EXPECT_EQ(state, other);
    other.name.back() = 'x';
    EXPECT_NE(state, other);
    other = state;
    other.serial = 1;
    EXPECT_NE(state, other);
}

TEST(ChannelState, ComparesItsBaseAndReportsItsType)
{
    ExpectComparesItsBase<PlayerState>();
    ExpectComparesItsBase<RecorderState>();
    EXPECT_EQ(PlayerState().ChannelType(), Guid::Type::ChannelGuidTypePlayer);
    EXPECT_EQ(RecorderState().ChannelType(), Guid::Type::ChannelGuidTypeRecorder);
}

TEST(PlayerDataOverrides, CopiesCarryTheReservedValues)
{
    PlayerDataOverrides overrides;
    overrides.reservedValueA = 1;
    overrides.reservedValueB = 0;
    overrides.Message("a text too long to be held in place");
    auto const copy = overrides;
    EXPECT_EQ(copy.reservedValueA.Value(), 1);
    EXPECT_EQ(copy.reservedValueB.Value(), 0);
    EXPECT_EQ(copy, overrides);
    overrides.reservedValueB.Delete();
    EXPECT_NE(copy, overrides);
}

TEST(MultiviewerDataOverrides, HoldsOneEntryPerPlayer)
{
    MultiviewerDataOverrides multiviewer(2);
    EXPECT_EQ(multiviewer.playerCount, 2u);
    multiviewer[1].Message("second");
    auto const copy = multiviewer;
    EXPECT_EQ(copy[0], PlayerDataOverrides());
    EXPECT_EQ(copy[1].Message().Value(), "second");
    EXPECT_EQ(MultiviewerDataOverrides(0).playerCount, 0u);
}

} // namespace
} // namespace Talvo::Corvane
