#include "tests/Thrift/Data/MultiviewerValues.h"

#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Thrift/Data/FromMultiviewerDataOverrides.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Data/ToMultiviewerDataOverrides.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/PlayerDataOverrides_types.h"
#include "tests/Thrift/RoundTrip.h"

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

TEST(PlayerDataOverridesConversion, RoundTrip)
{
    ExpectRoundTrip<OfPlayer>(FullOverrides('p'));
    ExpectRoundTrip<OfPlayer>(NoOverrides('p'));
    EXPECT_EQ(Printed(OfPlayer::Sent(FullOverrides('p'))),
              "PlayerDataOverrides(playerGuid=Guid(value=pppppppppppppppp), clipCreationIn=-3, clipCreationOut=4, "
              "isFirstControlledMediaOutput=1, controlMode=2, programMode=1, isPostRollEnabled=1, message=A message)");

    // An override may hold the value that a wire record starts with, and the empty time point.
    auto overrides = NoOverrides('p');
    overrides.GetClipCreationBoudaries().TimePointIn(TimePoints::TimePoint::Empty());
    overrides.IsFirstControlledMediaOutput(false);
    overrides.ControlMode(ControlType::Lever);
    overrides.ProgramMode(ProgramType::Program);
    overrides.IsPostRollEnabled(false);
    overrides.Message("");
    ExpectRoundTrip<OfPlayer>(overrides);
}

TEST(PlayerDataOverridesConversion, AbsentOverridesClearTheWiresFlagsButNotTheDomains)
{
    auto const wire = OfPlayer::Sent(NoOverrides('n'), OfPlayer::Sent(FullOverrides('p')));
    EXPECT_EQ(Printed(wire), "PlayerDataOverrides(playerGuid=Guid(value=nnnnnnnnnnnnnnnn), clipCreationIn=<null>, "
                             "clipCreationOut=<null>, isFirstControlledMediaOutput=<null>, controlMode=<null>, "
                             "programMode=<null>, isPostRollEnabled=<null>, message=<null>)");
    EXPECT_EQ(OfPlayer::Received(wire, FullOverrides('p')), FullOverrides('n'));
}

TEST(PlayerDataOverridesConversion, FieldsOfTheWireAreAppliedOneByOne)
{
    // The player is in every record, and each override in one of them.
    auto const full = OfPlayer::Sent(FullOverrides('p'));
    auto assembled = NoOverrides('p');
    auto const apply = [&](auto flag)
    {
        auto wire = full;
        wire.__isset = {};
        flag(wire.__isset);
        auto const before = assembled;
        assembled = OfPlayer::Received(wire, before);
        EXPECT_NE(assembled, before);
    };
    apply([](auto& isset) { isset.clipCreationIn = true; });
    apply([](auto& isset) { isset.clipCreationOut = true; });
    apply([](auto& isset) { isset.isFirstControlledMediaOutput = true; });
    apply([](auto& isset) { isset.controlMode = true; });
    apply([](auto& isset) { isset.programMode = true; });
    apply([](auto& isset) { isset.isPostRollEnabled = true; });
    apply([](auto& isset) { isset.message = true; });
    EXPECT_EQ(assembled, FullOverrides('p'));
}

TEST(PlayerDataOverridesConversion, ModesHaveTheNumbersOfTheWireAndUnknownOnesChangeNothingButTheFlag)
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
    wire.programMode = static_cast<Wire::ProgramMode::type>(2); // None of the other mode
    EXPECT_FALSE(OfPlayer::Received(wire).ProgramMode().HasValue());
}

TEST(PlayerDataOverridesConversion, PlayerIsReplacedEvenByNoneAndReservedValuesStay)
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

TEST(MultiviewerDataOverridesConversion, RoundTripReplacesTheWiresPlayers)
{
    ExpectRoundTrip<OfMultiviewer>(ThreePlayers(), MultiviewerDataOverrides(3));
    MultiviewerDataOverrides const none(0);
    ExpectRoundTrip<OfMultiviewer>(none, none);
    auto const wire = OfMultiviewer::Sent(ThreePlayers(), OfMultiviewer::Sent(ThreePlayers()));
    ASSERT_EQ(wire.playersData.size(), 3u);
    EXPECT_EQ(wire.playersData[2].playerGuid.value, std::string(16, 'c'));
    EXPECT_TRUE(OfMultiviewer::Sent(none, wire).playersData.empty());
}

TEST(MultiviewerDataOverridesConversion, TheDestinationDecidesTheNumberOfPlayers)
{
    auto const wire = OfMultiviewer::Sent(ThreePlayers());
    for (auto const count : {0u, 2u, 4u, 100'000u})
    {
        MultiviewerDataOverrides const before(count);
        auto multiviewer = before;
        EXPECT_EQ(OfMultiviewer::Told(wire, multiviewer), "Unexpected playerData count");
        EXPECT_EQ(multiviewer, before);
    }

    // Entries are patched as those of a single player.
    auto multiviewer = ThreePlayers();
    multiviewer[1].Message("kept");
    EXPECT_EQ(OfMultiviewer::Received(wire, multiviewer), multiviewer);
}

} // namespace
} // namespace Talvo::Tests
