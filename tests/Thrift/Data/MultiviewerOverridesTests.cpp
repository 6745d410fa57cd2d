#include "tests/Thrift/Data/MultiviewerValues.h"

#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Thrift/Data/FromMultiviewerDataOverrides.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Data/ToMultiviewerDataOverrides.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/PlayerDataOverrides_types.h"
#include "tests/Thrift/Converters.h"

#include <gtest/gtest.h>

#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data;
using namespace Corvane::Multiviewer;

namespace Wire = Corvane::Data::Generated;

using OfPlayer = Converters<FromPlayerDataOverrides, ToPlayerDataOverrides>;
using OfMultiviewer = Converters<FromMultiviewerDataOverrides, ToMultiviewerDataOverrides>;

TEST(PlayerDataOverridesConversion, ModesHaveTheNumbersOfTheWireAndUnknownNumbersChangeOnlyTheFlag)
{
    for (auto const number : {0, 1, 2})
    {
        auto overrides = NoOverrides('p');
        overrides.ControlMode(static_cast<ControlType>(number));
        overrides.ProgramMode(static_cast<ProgramType>(number % 2));
        auto const wire = OfPlayer::Sent(overrides, OfPlayer::Sent(FullOverrides('p')));
        EXPECT_EQ(wire.controlMode, number);
        EXPECT_EQ(wire.programMode, number % 2);
        EXPECT_EQ(OfPlayer::Received(wire), overrides);
    }
    for (auto const unknown : {-1, 3, 5, 65536})
    {
        auto overrides = NoOverrides('p');
        overrides.ControlMode(static_cast<ControlType>(unknown));
        overrides.ProgramMode(static_cast<ProgramType>(unknown));
        auto wire = OfPlayer::Sent(overrides, OfPlayer::Sent(FullOverrides('p')));
        EXPECT_TRUE(wire.__isset.controlMode && wire.__isset.programMode);
        EXPECT_EQ(wire.controlMode, Wire::ControlMode::None);
        EXPECT_EQ(wire.programMode, Wire::ProgramMode::Preview);

        wire.controlMode = static_cast<Wire::ControlMode::type>(unknown);
        wire.programMode = static_cast<Wire::ProgramMode::type>(unknown);
        EXPECT_EQ(OfPlayer::Received(wire, NoOverrides('n')), NoOverrides('p'));
        EXPECT_EQ(OfPlayer::Received(wire, FullOverrides('n')), FullOverrides('p'));
    }
    auto wire = OfPlayer::Sent(FullOverrides('p'));
    wire.programMode = static_cast<Wire::ProgramMode::type>(2); // the number of None in the control mode, unknown here
    EXPECT_FALSE(OfPlayer::Received(wire).ProgramMode().HasValue());
}

TEST(PlayerDataOverridesConversion, PlayerIsReplacedEvenIfAbsentAndReservedValuesAreKept)
{
    auto overrides = NoOverrides('p');
    overrides.reservedValueA = 1;
    overrides.reservedValueB = 2;
    EXPECT_EQ(OfPlayer::Received(OfPlayer::Sent(overrides)), NoOverrides('p'));
    EXPECT_EQ(OfPlayer::Received(OfPlayer::Sent(NoOverrides('p')), overrides), overrides);

    Wire::PlayerDataOverrides wire;
    Corvane::Data::Guid const guid = OfPlayer::Received(wire, overrides).PlayerGuid();
    EXPECT_EQ(guid, Corvane::Data::Guid::Empty());
}

MultiviewerDataOverrides ThreePlayers()
{
    MultiviewerDataOverrides multiviewer(3);
    multiviewer[0] = FullOverrides('a');
    multiviewer[1] = NoOverrides('b');
    multiviewer[2] = FullOverrides('c');
    return multiviewer;
}

TEST(MultiviewerDataOverridesConversion, DestinationDecidesTheNumberOfPlayers)
{
    auto const wire = OfMultiviewer::Sent(ThreePlayers());
    for (auto const count : {0u, 2u, 4u, 100'000u})
    {
        MultiviewerDataOverrides const before(count);
        auto multiviewer = before;
        EXPECT_EQ(OfMultiviewer::Told(wire, multiviewer), "Unexpected playerData count");
        EXPECT_EQ(multiviewer, before);
    }
}

} // namespace
} // namespace Talvo::Tests
