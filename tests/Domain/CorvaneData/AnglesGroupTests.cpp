#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"

#include <gmock/gmock.h>

namespace Talvo::Corvane::Data::Clips::Groups
{
namespace
{

using testing::ElementsAre;

Clips::Guid const ClipA("clip a"), ClipB("clip b"), ClipC("clip c");

AnglesGroup NewGroup()
{
    Guid guid;
    guid = Data::Guid(reinterpret_cast<unsigned char const*>("group"), 5);
    return AnglesGroup(guid);
}

TEST(AnglesGroup, SortsItsAnglesByMarkAndCamera)
{
    AnglesGroup group = NewGroup();
    group.AddAngle(Camera::Z, ClipC, PreferentialCamera::None);
    group.AddAngle(Camera::B, ClipB, PreferentialCamera::Primary);
    group.AddAngle(Camera::A, Clips::Guid::Empty(), PreferentialCamera::None); // a camera without a clip is an angle
    group.AddAngle(Camera::X, ClipA, PreferentialCamera::Secondary);
    EXPECT_EQ(group.PrimaryAngle(), (Angle{Camera::B, ClipB}));
    EXPECT_EQ(group.SecondaryAngle(), (Angle{Camera::X, ClipA}));
    EXPECT_THAT(group.OtherAngles(), ElementsAre(Angle{Camera::A, Clips::Guid::Empty()}, Angle{Camera::Z, ClipC}));
}

TEST(AnglesGroup, PrefersTheLowestCameraOfSeveralWithOneMark)
{
    AnglesGroup group = NewGroup();
    for (Camera const camera : {Camera::D, Camera::B}) group.AddAngle(camera, ClipA, PreferentialCamera::Primary);
    for (Camera const camera : {Camera::E, Camera::C}) group.AddAngle(camera, ClipB, PreferentialCamera::Secondary);
    EXPECT_EQ(group.PrimaryAngle().camera, Camera::B);
    EXPECT_EQ(group.SecondaryAngle().camera, Camera::C);
    EXPECT_THAT(group.OtherAngles(), ElementsAre(Angle{Camera::D, ClipA}, Angle{Camera::E, ClipB}));
}

TEST(AnglesGroup, IgnoresInvalidCamerasAndOverwritesAUsedSlot)
{
    AnglesGroup group = NewGroup();
    for (Camera const camera : {Camera::NotSet, Camera{16}, Camera{-1}, Camera{-2147483647 - 1}})
        group.AddAngle(camera, ClipA, PreferentialCamera::Primary);
    EXPECT_EQ(group, NewGroup());

    group.AddAngle(Camera::L, ClipA, PreferentialCamera::Primary);
    group.AddAngle(Camera::L, ClipB, PreferentialCamera::None);
    EXPECT_EQ(group.PrimaryAngle(), Angle::Empty());
    EXPECT_THAT(group.OtherAngles(), ElementsAre(Angle{Camera::L, ClipB}));
}

} // namespace
} // namespace Talvo::Corvane::Data::Clips::Groups
