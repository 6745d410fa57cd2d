#include "tests/Thrift/Data/Clips/Values.h"

#include "records/Clips.h"
#include "tests/Thrift/Converters.h"
#include "tests/Thrift/Data/Values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using namespace Corvane::Data::Clips;
using TimePoints::TimeCode;

namespace Clips = Corvane::Data::Clips;
namespace WireGroups = Corvane::Data::Clips::Groups::Generated;

using OfGroup = Converters<AnglesGroupToThriftConverter, ThriftToAnglesGroupConverter>;
using OfRange = Converters<RecordingRangeToThriftConverter, ThriftToRecordingRangeConverter>;
using OfTrain = Converters<TrainToThriftConverter, ThriftToTrainConverter>;

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

RecordingRange FullRange()
{
    return {{1}, {-2}, ParsedTimeCode("2001-01-01T01:02:03:04@25"), ParsedTimeCode("2001-01-01T01:02:59;29@30")};
}

TEST(RecordingRangeConversion, IncompleteOrBadRangesKeepTheDestination)
{
    auto const full = OfRange::Sent(FullRange());
    auto const expectRefused = [](Generated::RecordingRange const& wire, char const* const message)
    {
        RecordingRange range;
        EXPECT_EQ(OfRange::Told(wire, range), message);
        EXPECT_EQ(range, RecordingRange());
    };

    auto incomplete = full;
    incomplete.__isset.outBoundTimecode = false;
    incomplete.inBoundTimecode = "bad"; // missing fields are reported first
    expectRefused(incomplete, "RecordingRange is empty");
    for (auto const* const bad : {"", "noon", "2001-02-29T00:00:00:00@25", "2001-01-01T00:00:00:00@99999999999"})
    {
        auto wire = full;
        wire.inBoundTimecode = bad;
        expectRefused(wire, "Invalid TimeCode format");
        wire = full;
        wire.outBoundTimecode = bad;
        expectRefused(wire, "Invalid TimeCode format");
    }
}

Train FullTrain(bool const isInMoving = true)
{
    return {std::make_unique<Clip>(),
            {FullRange(), FullRange()},
            isInMoving,
            !isInMoving,
            ParsedTimeCode("2001-01-01T00:00:00:00@25")};
}

Train EmptyTrain()
{
    return {nullptr, {}, false, false, TimeCode(TimeCode::Empty())};
}

TEST(TrainConversion, BadRangesAndABadLastTimeCodeDoNotFail)
{
    auto wire = OfTrain::Sent(FullTrain());
    wire.recordingRanges[0].inBoundTimecode = "noon";
    wire.recordingRanges.emplace_back(); // all flags clear
    wire.lastKnownTimeCode = "2001-01-01T00:00:00:00@99999999999";
    auto const train = OfTrain::Received(wire, EmptyTrain());
    EXPECT_THAT(train.trainRanges, testing::ElementsAre(RecordingRange(), FullRange(), RecordingRange()));
    EXPECT_EQ(train.lastKnownTimeCode, TimeCode::Empty());
}

TEST(TrainConversion, RejectedRecordClearsTheDestination)
{
    auto wire = OfTrain::Sent(FullTrain());
    wire.__isset = {}; // the flags decide, not the values
    auto train = FullTrain();
    EXPECT_EQ(OfTrain::Told(wire, train), "Train is empty");
    EXPECT_EQ(train.trainClip, nullptr);
    EXPECT_TRUE(train.trainRanges.empty());
    EXPECT_FALSE(train.isInMoving || train.isOutMoving);
    EXPECT_EQ(train.lastKnownTimeCode, TimeCode::Empty());
}

TEST(TrainConversion, BadClipKeepsTheDestination)
{
    Generated::Train wire;
    wire.__isset.trainData = wire.__isset.isInMoving = true;
    auto train = FullTrain(false);
    auto const* const clip = train.trainClip.get();
    EXPECT_EQ(OfTrain::Told(wire, train), "Clip is empty");
    EXPECT_EQ(train.trainClip.get(), clip);
    EXPECT_EQ(train.trainRanges.size(), 2u);
    EXPECT_TRUE(train.isOutMoving);
}

} // namespace
} // namespace Talvo::Tests
