#include "tests/Thrift/Data/Clips/Values.h"

#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip_types.h"
#include "tests/Thrift/Converters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using Corvane::Data::Clips::Clip;
using testing::Each;
using testing::ElementsAre;

using OfClip = Converters<ClipToThriftConverter, ThriftToClipConverter>;

std::string Text(auto const& payload)
{
    return {payload.begin(), payload.end()};
}

TEST(ClipConversion, ReservedFieldsAreNeitherWrittenNorRead)
{
    Clip clip;
    clip.reservedName.isUtf16 = true;
    clip.reservedFlagA = clip.reservedFlagB = clip.reservedFlagC = true;
    clip.reservedValue = 99;
    EXPECT_EQ(OfClip::Received(OfClip::Sent(clip)), Clip());
    EXPECT_EQ(OfClip::Received(OfClip::Sent(Clip()), clip), clip);
}

TEST(ClipConversion, EmptyValuesAreAbsentAndUnknownNumbersAreZero)
{
    Clip clip;
    clip.hdrProfile = Corvane::Data::Clips::HdrProfile::Unknown;
    ASSERT_TRUE(clip.TrySetInBoundTodTimecode(TimePoints::TimeCode::Empty()));
    ASSERT_TRUE(clip.TrySetInBoundUserTimecode(TimePoints::TimeCode::Empty()));
    auto const absent = OfClip::Sent(clip).__isset;
    EXPECT_FALSE(absent.hdrProfile || absent.inBoundTodTimecode || absent.inBoundUserTimecode);

    auto const setUnknown = [](auto&... fields)
    { ((fields = static_cast<std::remove_reference_t<decltype(fields)>>(99)), ...); };
    setUnknown(clip.sourceEngine, clip.uhdDivisionMode, clip.hdrProfile, clip.alphaArchiveStatus, clip.fillAndKeyStatus,
               clip.camera, clip.afdAspectRatio, clip.codedFrameAspectRatio, clip.primaryTimecode, clip.rating,
               clip.preferentialCamera);
    auto const wire = OfClip::Sent(clip, OfClip::Sent(FullClip()));
    for (int const number :
         {int{wire.sourceEngine}, int{wire.uhdDivisionMode}, int{wire.hdrProfile}, int{wire.alphaArchiveStatus},
          int{wire.fillAndKeyStatus}, int{wire.camera}, int{wire.afdAspectRatio}, int{wire.codedFrameAspectRatio},
          int{wire.primaryTimecode}, int{wire.rating}, int{wire.preferentialCamera}})
        EXPECT_EQ(number, 0);
    auto const isset = OfClip::Sent(clip).__isset;
    EXPECT_TRUE(isset.sourceEngine && isset.uhdDivisionMode && isset.hdrProfile && isset.alphaArchiveStatus &&
                isset.fillAndKeyStatus && isset.camera && isset.afdAspectRatio && isset.codedFrameAspectRatio &&
                isset.primaryTimecode && isset.rating && isset.preferentialCamera);
}

TEST(ClipConversion, TextsAreTruncatedPaddedAndTerminatedPerSlot)
{
    Generated::Clip wire;
    wire.__set_umId("TWELVE CHARS");
    wire.__set_sourceUmId("");
    wire.__set_materialId(std::string("A\0B", 3));
    wire.name.data = std::string("\x41\x00\x42", 3);
    wire.name.isUtf16 = true; // the flags inside the text are ignored
    wire.varId.data = std::string(33, 'v');
    wire.__isset.umId = wire.__isset.sourceUmId = wire.__isset.materialId = true;
    wire.__isset.name = wire.__isset.varId = true;

    auto before = FullClip();
    before.varId.end.fill('!');
    auto const clip = OfClip::Received(wire, before);
    EXPECT_EQ(Text(clip.umId), std::string("TWELVE C\0", 9));
    EXPECT_EQ(Text(clip.sourceUmId), std::string(9, '\0'));
    EXPECT_EQ(Text(clip.materialId), std::string("A\0B\0\0\0\0\0\0", 9));
    EXPECT_TRUE(clip.name.isUtf16);
    EXPECT_EQ(Text(clip.name.payload), wire.name.data + std::string(21, '\0'));
    EXPECT_EQ(Text(clip.varId.payload), std::string(32, 'v'));
    EXPECT_THAT(clip.varId.end, Each('\0'));

    auto const again = OfClip::Sent(clip);
    EXPECT_EQ(again.umId, "TWELVE C");
    EXPECT_EQ(again.sourceUmId, "");
    EXPECT_EQ(again.materialId, "A");
    EXPECT_EQ(again.name.data, wire.name.data + std::string(21, '\0'));
    EXPECT_TRUE(again.name.isUtf16 && again.name.__isset.data && again.name.__isset.isUtf16);
}

TEST(ClipConversion, ListsReplaceOnlyAsManySlotsAsTheyHaveElements)
{
    Generated::Clip wire;
    wire.__isset.keywords = wire.__isset.userBits = true;
    wire.keywords.resize(2);
    wire.keywords[1].data = "longer than twelve";
    wire.keywords[1].isUtf16 = true;
    wire.userBits = {-1, 0x1234};
    auto const few = OfClip::Received(wire);
    EXPECT_EQ(Text(few.keywords[0].payload), std::string(12, '\0'));
    EXPECT_EQ(Text(few.keywords[1].payload), "longer than ");
    EXPECT_TRUE(few.keywords[1].isUtf16);
    for (auto const slot : {2u, 3u, 4u}) EXPECT_EQ(few.keywords[slot], Clip().keywords[slot]);
    EXPECT_THAT(few.userBits, ElementsAre(0xFF, 0x34, 0, 0, 0, 0, 0, 0));

    wire.keywords.assign(5, wire.keywords[1]);
    wire.keywords.resize(7);
    wire.userBits.assign(8, -1);
    wire.userBits.resize(10);
    auto const many = OfClip::Received(wire);
    for (auto const& slot : many.keywords) EXPECT_EQ(Text(slot.payload), "longer than ");
    EXPECT_THAT(many.userBits, Each(0xFF));
    EXPECT_THAT(OfClip::Sent(many).userBits, testing::AllOf(testing::SizeIs(8), Each(255)));
}

TEST(ClipConversion, LegacyDropIsReadOnlyIntoAClipThatIsAlreadyNtsc)
{
    Generated::Clip wire;
    wire.__isset.isLegacyTimecodeDrop = wire.isLegacyTimecodeDrop = true;
    EXPECT_EQ(OfClip::Received(wire), Clip()); // dropped, but the record is not empty

    wire.__isset.videoStandard = true;
    wire.videoStandard = Generated::VideoStandard::Ntsc;
    EXPECT_FALSE(OfClip::Received(wire).isLegacyTimecodeDrop);
    wire.videoStandard = Generated::VideoStandard::Pal;
    EXPECT_TRUE(OfClip::Received(wire, NtscClip()).isLegacyTimecodeDrop);
}

} // namespace
} // namespace Talvo::Tests
