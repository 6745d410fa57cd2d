#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"

#include <gtest/gtest.h>

namespace Talvo::Corvane
{
namespace
{

using namespace Data::Channels;

// Every comparison of states depends on this, including those of the round trips.
template<typename TState>
void ExpectStateOf(Guid::Type const type)
{
    TState named, numbered;
    EXPECT_EQ(named, numbered);
    EXPECT_EQ(named.ChannelType(), type);
    named.name.back() = 'x';
    EXPECT_NE(named, TState());
    numbered.serial = 1;
    EXPECT_NE(numbered, TState());
}

TEST(ChannelState, ComparesItsBaseAndReportsItsType)
{
    ExpectStateOf<PlayerState>(Guid::Type::ChannelGuidTypePlayer);
    ExpectStateOf<RecorderState>(Guid::Type::ChannelGuidTypeRecorder);
}

} // namespace
} // namespace Talvo::Corvane
