#include "tests/Thrift/Data/Clips/Values.h"

#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/FromEssence.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Clips/ToEssence.h"
#include "generated/Clip_types.h"
#include "tests/Thrift/RoundTrip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using Corvane::Data::Clips::Clip;
using Corvane::Data::Clips::VideoStandard;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

namespace Essences = Corvane::Data::Clips::Essences;

using OfClip = Converters<ClipToThriftConverter, ThriftToClipConverter>;
using OfEssence = Converters<EssenceToThriftConverter, ThriftToEssenceConverter>;

std::string Text(auto const& payload)
{
    return {payload.begin(), payload.end()};
}

TEST(EssenceConversion, RoundTrip)
{
    for (auto const type : {Essences::Type::Intra, Essences::Type::LongGop, Essences::Type::LowRes})
    {
        ExpectRoundTrip<OfEssence>(FullEssence(type));
        ExpectFieldByField<OfEssence>(FullEssence(type));
        Clip::Essence cleared;
        cleared.Clear(type);
        ExpectRoundTrip<OfEssence>(cleared);
    }
}

TEST(EssenceConversion, TypeResetsAndOtherFieldsPatch)
{
    Generated::Essence wire;
    wire.__isset.verticalFrameSize = true;
    wire.verticalFrameSize = 7;
    auto expected = FullEssence(Essences::Type::LowRes);
    expected.verticalFrameSize = 7;
    EXPECT_EQ(OfEssence::Received(wire, FullEssence(Essences::Type::LowRes)), expected);

    wire.__isset.type = true;
    for (auto const type : {Essences::Type::LongGop, Essences::Type::LowRes}) // another type and the one it holds
    {
        wire.type = EnumConverter::ToGeneratedEnum(type);
        expected.Clear(type);
        expected.verticalFrameSize = 7;
        EXPECT_EQ(OfEssence::Received(wire, FullEssence(Essences::Type::LowRes)), expected);
    }

    auto essence = expected;
    EXPECT_EQ(OfEssence::Told({}, essence), "Essence is empty");
    EXPECT_EQ(essence, expected);
}

TEST(EssenceConversion, ZerosAreSentToo)
{
    auto wire = OfEssence::Sent(Clip::Essence());
    wire.__isset.type = false; // which would reset the rest
    EXPECT_EQ(OfEssence::Received(wire, FullEssence(Essences::Type::Intra)), Clip::Essence());
}

TEST(ClipConversion, RoundTrip)
{
    ExpectRoundTrip<OfClip>(FullClip(), NtscClip());
    ExpectFieldByField<OfClip>(FullClip(), NtscClip());
    ExpectRoundTrip<OfClip>(Clip());
}

TEST(ClipConversion, SendsEachFieldUnderItsName)
{
    auto const essence = [](char const type, char const audioCompressionType)
    {
        return std::string("Essence(type=") + type +
               ", recordingStatus=4, archiveStatus=1, metadata=2, blockSize=2, videoCompressionType=23, "
               "audioCompressionType=" +
               audioCompressionType +
               ", videoCompressionInfo=8, audioConfiguration=7, videoCompressionRate=100, audioCompressionRate=-3, "
               "horizontalFrameSize=1920, verticalFrameSize=1080)";
    };
    std::string const blankKeyword = "AsciiOrUtf16String(data=            , isUtf16=0), ";
    EXPECT_EQ(
        Printed(OfClip::Sent(FullClip())),
        "Clip(umId=UMID0001, sourceUmId=UMID0002, fillAndKeyUmId=UMID0003, materialId=MATERIAL, "
        "name=AsciiOrUtf16String(data=A name of 24 bytes, full, isUtf16=1), "
        "varId=AsciiOrUtf16String(data=A variable identifier, 32 bytes., isUtf16=0), "
        "keywords=[AsciiOrUtf16String(data=keyword one., isUtf16=0), " +
            blankKeyword + blankKeyword + blankKeyword +
            "AsciiOrUtf16String(data=keyword five, isUtf16=1)], userBits=[0, 1, 127, 128, 200, 254, 255, 7], is3D=1, "
            "isDual=1, isTwinRec=1, isLegacyTimecodeDrop=1, trainStatus=2, sourceEngine=3, uhdDivisionMode=2, "
            "hdrProfile=5, alphaArchiveStatus=2, archiveStatus=2, fillAndKeyStatus=2, userProtect=-5, camera=13, "
            "afdAspectRatio=3, codedFrameAspectRatio=2, videoFormat=4, videoStandard=1, userTimecodeType=1, "
            "primaryTimecode=2, rating=3, preferentialCamera=2, inBoundField=4294967297, shortInBoundField=-2, "
            "shortOutBoundField=3, outBoundField=9223372036854775807, legacyTimecodeOffset=4294967295, kviIndex=-7, "
            "userLock=2147483648, thumbnailOffset=11, sequence=12, machineSerial=4294967294, nbAudioVideoChannels=16, "
            "dolbyMonoSignal=2, inBoundTodTimecode=2024-02-29T23:59:00;02@30, "
            "inBoundUserTimecode=2000-01-01T10:11:12:47@60, sourceInBoundTodTimecode=<null>, "
            "sourceInBoundUserTimecode=<null>, inBoundTimepoint=-1, intraEssence=" +
            essence('0', '2') + ", longGopEssence=" + essence('1', '2') + ", lowResEssence=" + essence('2', '1') + ")");

    // The flags all hold the same above.
    Clip clip;
    clip.isDual = clip.isLegacyTimecodeDrop = true;
    EXPECT_THAT(Printed(OfClip::Sent(clip)), HasSubstr("is3D=0, isDual=1, isTwinRec=0, isLegacyTimecodeDrop=1"));
    clip = Clip();
    clip.isDual = clip.isTwinRec = true;
    EXPECT_THAT(Printed(OfClip::Sent(clip)), HasSubstr("is3D=0, isDual=1, isTwinRec=1, isLegacyTimecodeDrop=0"));
}

TEST(ClipConversion, ReservedFieldsStayInTheProcess)
{
    Clip clip;
    clip.reservedName.isUtf16 = true;
    clip.reservedFlagA = clip.reservedFlagB = clip.reservedFlagC = true;
    clip.reservedValue = 99;
    EXPECT_EQ(OfClip::Received(OfClip::Sent(clip)), Clip());
    EXPECT_EQ(OfClip::Received(OfClip::Sent(Clip()), clip), clip);
}

TEST(ClipConversion, FreshClipSendsItsDefaultsAndNoAbsentField)
{
    auto const wire = OfClip::Sent(Clip());
    EXPECT_EQ(wire.umId, "        ");
    EXPECT_EQ(wire.name.data, std::string(24, ' '));
    EXPECT_EQ(wire.varId.data, std::string(32, ' '));
    EXPECT_EQ(wire.keywords.size(), 5u);
    EXPECT_THAT(wire.userBits, testing::AllOf(testing::SizeIs(8), Each(0)));
    EXPECT_EQ(wire.hdrProfile, Generated::HdrProfile::Sdr);
    EXPECT_EQ(wire.inBoundTodTimecode, "1900-01-01T00:00:00:00@50");
    EXPECT_EQ(wire.inBoundUserTimecode, "1900-01-01T00:00:00:00@50");
    auto const& isset = wire.__isset;
    EXPECT_TRUE(isset.umId && isset.sourceUmId && isset.fillAndKeyUmId && isset.materialId && isset.name &&
                isset.varId && isset.keywords && isset.userBits && isset.is3D && isset.isDual && isset.isTwinRec &&
                isset.isLegacyTimecodeDrop && isset.trainStatus && isset.hdrProfile && isset.archiveStatus &&
                isset.userProtect && isset.videoFormat && isset.videoStandard && isset.userTimecodeType &&
                isset.inBoundField && isset.shortInBoundField && isset.shortOutBoundField && isset.outBoundField &&
                isset.legacyTimecodeOffset && isset.kviIndex && isset.userLock && isset.thumbnailOffset &&
                isset.sequence && isset.machineSerial && isset.nbAudioVideoChannels && isset.dolbyMonoSignal &&
                isset.inBoundTodTimecode && isset.inBoundUserTimecode);
    EXPECT_FALSE(isset.sourceEngine || isset.uhdDivisionMode || isset.alphaArchiveStatus || isset.fillAndKeyStatus ||
                 isset.camera || isset.afdAspectRatio || isset.codedFrameAspectRatio || isset.primaryTimecode ||
                 isset.rating || isset.preferentialCamera);
    EXPECT_FALSE(isset.sourceInBoundTodTimecode || isset.sourceInBoundUserTimecode || isset.inBoundTimepoint ||
                 isset.intraEssence || isset.longGopEssence || isset.lowResEssence);

    // Not sent either, though a fresh clip holds other values.
    Clip clip;
    clip.hdrProfile = Corvane::Data::Clips::HdrProfile::Unknown;
    ASSERT_TRUE(clip.TrySetInBoundTodTimecode(TimePoints::TimeCode::Empty()));
    ASSERT_TRUE(clip.TrySetInBoundUserTimecode(TimePoints::TimeCode::Empty()));
    auto const absent = OfClip::Sent(clip).__isset;
    EXPECT_FALSE(absent.hdrProfile || absent.inBoundTodTimecode || absent.inBoundUserTimecode);
}

TEST(ClipConversion, AbsentFieldsKeepWhatAReusedWireRecordHeld)
{
    auto const wire = OfClip::Sent(Clip(), OfClip::Sent(FullClip()));
    EXPECT_TRUE(wire.__isset.camera && wire.__isset.inBoundTimepoint && wire.__isset.intraEssence);
    EXPECT_EQ(wire.camera, Generated::Camera::X);
    EXPECT_EQ(wire.inBoundTimepoint, -1);
    EXPECT_EQ(wire.keywords.size(), 5u);
    EXPECT_THAT(wire.userBits, ElementsAre(0, 1, 127, 128, 200, 254, 255, 7, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(ClipConversion, TextsAreCutPaddedAndEndedAsTheirSlotsSay)
{
    Generated::Clip wire;
    wire.__set_umId("TWELVE CHARS");
    wire.__set_sourceUmId("");
    wire.__set_materialId(std::string("A\0B", 3));
    wire.name.data = std::string("\x41\x00\x42", 3);
    wire.name.isUtf16 = true; // the inner flags are clear, and not looked at
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

TEST(ClipConversion, ListsPatchTheSlotsThatTheyReach)
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

TEST(ClipConversion, LegacyDropIsTakenOnlyByAClipThatIsNtscBefore)
{
    Generated::Clip wire;
    wire.__isset.isLegacyTimecodeDrop = wire.isLegacyTimecodeDrop = true;
    EXPECT_EQ(OfClip::Received(wire), Clip()); // dropped, yet it counts as a field

    wire.__isset.videoStandard = true;
    wire.videoStandard = Generated::VideoStandard::Ntsc;
    EXPECT_FALSE(OfClip::Received(wire).isLegacyTimecodeDrop);
    wire.videoStandard = Generated::VideoStandard::Pal;
    EXPECT_TRUE(OfClip::Received(wire, NtscClip()).isLegacyTimecodeDrop);
}

TEST(ClipConversion, WordsAreZeroExtendedAndHighWordsAreLost)
{
    Clip clip;
    clip.legacyTimecodeOffset = clip.userLock = clip.thumbnailOffset = clip.sequence = clip.machineSerial = 0xFFFFFFFE;
    auto wire = OfClip::Sent(clip);
    using Wire = Generated::Clip;
    for (auto const field :
         {&Wire::legacyTimecodeOffset, &Wire::userLock, &Wire::thumbnailOffset, &Wire::sequence, &Wire::machineSerial})
    {
        EXPECT_EQ(wire.*field, 0xFFFFFFFE);
        wire.*field += 0x1'0000'0000;
    }
    EXPECT_EQ(OfClip::Received(wire), clip);
}

TEST(ClipConversion, EmptyWhenNothingCounts)
{
    Generated::Clip wire;
    auto const expectEmpty = [&wire]
    {
        auto clip = FullClip();
        EXPECT_EQ(OfClip::Told(wire, clip), "Clip is empty");
        EXPECT_EQ(clip, FullClip());
    };
    expectEmpty();
    wire.__set_sourceInBoundTodTimecode("never read");
    wire.__set_sourceInBoundUserTimecode("never read");
    expectEmpty();
    wire.__isset.keywords = wire.__isset.userBits = true;
    expectEmpty();
}

TEST(ClipConversion, TimeCodeOfAnotherRateStopsTheConversion)
{
    struct Row
    {
        void (Generated::Clip::*set)(std::string const&);
        char const* message;
    };
    for (auto const& [set, message] : {
             Row{&Generated::Clip::__set_inBoundTodTimecode, "In Bound TOD Timecode Rate inconsistent with Clip Rate"},
             Row{&Generated::Clip::__set_inBoundUserTimecode,
                 "In Bound User Timecode Rate inconsistent with Clip Rate"},
         })
    {
        auto wire = OfClip::Sent(FullClip());
        (wire.*set)("2024-02-29T12:00:00:00@25");
        auto clip = NtscClip();
        EXPECT_EQ(OfClip::Told(wire, clip), message);
        EXPECT_EQ(clip.dolbyMonoSignal, 2);                               // before it: applied
        EXPECT_EQ(clip.inBoundTimepoint, TimePoints::TimePoint::Empty()); // behind it: not
        EXPECT_EQ(clip.InBoundUserTimecode(), Clip::DefaultTimecode());
        wire.videoStandard = Generated::VideoStandard::Pal; // the standard of the same record decides
        (wire.*set)("2024-02-29T12:00:00;00@30");
        EXPECT_FALSE(OfClip::Told(wire, clip).empty());
    }
}

TEST(ClipConversion, EmptyEssenceStopsTheConversion)
{
    auto wire = OfClip::Sent(FullClip());
    wire.longGopEssence.__isset = {};
    auto clip = NtscClip();
    EXPECT_EQ(OfClip::Told(wire, clip), "Essence is empty");
    EXPECT_EQ(clip.intraEssence, FullClip().intraEssence);
    EXPECT_EQ(clip.longGopEssence, Clip().longGopEssence);
    EXPECT_EQ(clip.lowResEssence, Clip().lowResEssence);

    Generated::Clip only;
    only.__isset.lowResEssence = true;
    Clip fresh;
    EXPECT_EQ(OfClip::Told(only, fresh), "Essence is empty");
}

} // namespace
} // namespace Talvo::Tests
