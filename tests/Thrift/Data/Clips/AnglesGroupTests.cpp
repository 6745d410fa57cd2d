#include "tests/Thrift/Data/Clips/Values.h"

#include "records/Clips.h"
#include "tests/Thrift/Converters.h"
#include "tests/Thrift/Data/Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using namespace Corvane::Data::Clips;

namespace Clips = Corvane::Data::Clips;
namespace WireGroups = Corvane::Data::Clips::Groups::Generated;

using OfGroup = Converters<AnglesGroupToThriftConverter, ThriftToAnglesGroupConverter>;

Groups::AnglesGroup FullGroup()
{
    Groups::AnglesGroup group(Id<Groups::Guid>('g'));
    group.AddAngle(Camera::Z, Id<Clips::Guid>('z'), PreferentialCamera::Primary);
    group.AddAngle(Camera::B, Id<Clips::Guid>('b'), PreferentialCamera::Secondary);
    group.AddAngle(Camera::A, Id<Clips::Guid>('a'), PreferentialCamera::None);
    group.AddAngle(Camera::C, Clips::Guid(), PreferentialCamera::None); // has no clip, but is not the empty angle
    return group;
}

/// Returns the written items of a group: camera, first byte of the identifier and mark of each.
std::string SentItems(Groups::AnglesGroup const& group)
{
    WireGroups::AnglesGroup wire;
    wire.angles[Generated::Camera::Y]; // cleared before the group is written
    wire = OfGroup::Sent(group, wire);
    EXPECT_EQ(wire.id.value, std::string(16, 'g'));
    std::string told;
    for (auto const& [camera, item] : wire.angles)
        told += std::to_string(camera) + item.clipId.value.substr(0, 1) + std::to_string(item.preferencialCamera) + ' ';
    return told;
}

TEST(AnglesGroupConversion, WritesOneItemPerCameraInTheOrderOfCameras)
{
    using namespace std::string_literals;
    auto group = FullGroup();
    EXPECT_EQ(SentItems(group), "1a0 2b2 3\0000 15z1 "s);

    // AddAngle() never sets these contents of slots.
    group.angleSlots[3] = {false, Camera::NotSet, Clips::Guid(), PreferentialCamera::None}; // the empty angle: ignored
    group.angleSlots[4] = {false, Camera::NotSet, Id<Clips::Guid>('n'), PreferentialCamera::None};
    group.angleSlots[5] = {false, Camera::Z, Id<Clips::Guid>('y'), PreferentialCamera::None}; // replaces primary Z
    EXPECT_EQ(SentItems(group), "0n0 1a0 2b2 3\0000 15y0 "s);
}

} // namespace
} // namespace Talvo::Tests
