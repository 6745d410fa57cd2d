#include "Domain/CorvaneData/Clips/Clip.h"
#include "TimePoints/TimeCodeBuilder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Data::Clips
{
namespace
{

using namespace std::string_view_literals;
using TimePoints::TimeCode;
using TimePoints::TimeCodeBuilder;

std::vector<std::int64_t> Numbers(auto... values)
{
    return {static_cast<std::int64_t>(values)...};
}

TEST(Clip, DiffersInAnyByteOfAText)
{
    Clip clip;
    clip.name.payload.back() = '\0'; // padded with a zero instead of a blank
    EXPECT_NE(clip, Clip());
    clip = Clip();
    clip.keywords[4].isUtf16 = true;
    EXPECT_NE(clip, Clip());
}

TEST(Clip, AcceptsOnlyTimeCodesOfItsVideoStandard)
{
    std::set<int> const palRates{25, 50, 100};
    std::set<int> const ntscRates{24, 30, 48, 60, 120};
    for (auto const& [standard, accepted] :
         {std::pair(VideoStandard::Pal, palRates), std::pair(VideoStandard::Ntsc, ntscRates)})
        for (int rate = 1; rate <= 240; ++rate)
        {
            Clip clip;
            clip.VideoStandard(standard);
            auto const timecode = TimeCodeBuilder{.year = 2020, .hour = 1, .numerator = rate}.Build();
            bool const agrees = accepted.contains(rate);
            auto const& expected = agrees ? timecode : Clip::DefaultTimecode();

            EXPECT_EQ(clip.TrySetInBoundTodTimecode(timecode), agrees) << rate;
            EXPECT_EQ(clip.InBoundTodTimecode(), expected) << rate;
            EXPECT_EQ(clip.InBoundUserTimecode(), Clip::DefaultTimecode()) << rate;
            EXPECT_EQ(clip.TrySetInBoundUserTimecode(timecode), agrees) << rate;
            EXPECT_EQ(clip.InBoundUserTimecode(), expected) << rate;
        }
}

TEST(Clip, AcceptsTheDefaultTimecodeUnderAnyStandardAndKeepsItWhenTheStandardChanges)
{
    auto const ntscTimecode = TimeCodeBuilder{.hour = 1, .numerator = 60, .dropFrame = true}.Build();
    Clip clip;
    clip.VideoStandard(VideoStandard::Ntsc);
    ASSERT_TRUE(clip.TrySetInBoundTodTimecode(ntscTimecode) && clip.TrySetInBoundUserTimecode(ntscTimecode));
    clip.VideoStandard(VideoStandard::Pal);
    EXPECT_EQ(clip.VideoStandard(), VideoStandard::Pal);
    EXPECT_EQ(clip.InBoundTodTimecode(), ntscTimecode);

    clip.VideoStandard(VideoStandard::Ntsc);
    EXPECT_TRUE(clip.TrySetInBoundTodTimecode(Clip::DefaultTimecode()));
    EXPECT_TRUE(clip.TrySetInBoundUserTimecode(Clip::DefaultTimecode()));
    EXPECT_EQ(clip.InBoundTodTimecode(), Clip::DefaultTimecode());
    EXPECT_EQ(clip.InBoundUserTimecode(), Clip::DefaultTimecode());

    auto const oneSampleLater = TimeCodeBuilder{.sample = 1}.Build();
    EXPECT_FALSE(clip.TrySetInBoundTodTimecode(oneSampleLater));
}

TEST(Clip, EmptyTimecodeMakesTheTimecodeAbsentUnderAnyStandard)
{
    for (auto const standard : {VideoStandard::Pal, VideoStandard::Ntsc, static_cast<VideoStandard>(7)})
    {
        Clip clip;
        clip.VideoStandard(standard);
        EXPECT_TRUE(clip.TrySetInBoundTodTimecode(TimeCode::Empty()));
        EXPECT_EQ(clip.InBoundTodTimecode(), TimeCode::Empty());
        EXPECT_EQ(clip.InBoundUserTimecode(), Clip::DefaultTimecode());
        EXPECT_TRUE(clip.TrySetInBoundUserTimecode(TimeCode::Empty()));
        EXPECT_EQ(clip.InBoundUserTimecode(), TimeCode::Empty());
    }
}

TEST(Clip, IdentifierTextsAreTruncatedToEightCharacters)
{
    for (auto const& [text, stored, isWhole] :
         {std::tuple("", "\0\0\0\0\0\0\0\0\0"sv, true), std::tuple("A1", "A1\0\0\0\0\0\0\0"sv, true),
          std::tuple("A1B2C3D4", "A1B2C3D4\0"sv, true), std::tuple("A1B2C3D4E", "A1B2C3D4\0"sv, false)})
    {
        UmIdText umId;
        umId.fill('x');
        EXPECT_EQ(SetUmId(umId, text), isWhole) << text;
        EXPECT_EQ(std::string_view(umId.data(), umId.size()), stored) << text;
    }
}

TEST(ClipEssence, ClearSetsEveryFieldToTheNeutralValueOfTheType)
{
    using namespace Essences;
    EXPECT_EQ(Clip().longGopEssence.Type(), Essences::Type::LongGop);
    EXPECT_EQ(Clip().lowResEssence.Type(), Essences::Type::LowRes);
    struct Row
    {
        Essences::Type type;
        Essences::Metadata metadata;
        Essences::VideoCompressionType video;
        Essences::AudioCompressionType audio;
        Essences::VideoCompressionInfo info;
    };
    for (Row const& row : {Row{Type::Intra, Metadata{}, VideoCompressionType{}, AudioCompressionType{}, {}},
                           Row{Type::LongGop, Metadata::LongGopNone, VideoCompressionType::LongGopXdCam,
                               AudioCompressionType::LongGopNone, VideoCompressionInfo::LongGopNone},
                           Row{Type::LowRes, Metadata::LowResNone, VideoCompressionType::LowResMjpeg,
                               AudioCompressionType::LowResMpeg1Layer2, VideoCompressionInfo::LowResNone}})
    {
        Clip::Essence essence;
        essence.recordingStatus = RecordingStatus::OnDisk;
        essence.archiveStatus = Essences::ArchiveStatus::Stored;
        essence.Metadata(Metadata::IntraEncodingBitLength10);
        essence.blockSize = BlockSize::MB16;
        essence.VideoCompressionType(VideoCompressionType::IntraXAvc480);
        essence.AudioCompressionType(AudioCompressionType{7}); // the setters check nothing
        essence.VideoCompressionInfo(VideoCompressionInfo::IntraProResLt);
        essence.audioConfiguration = AudioConfiguration::ThirtyTwoMonos;
        essence.videoCompressionRate = essence.audioCompressionRate = 1;
        essence.horizontalFrameSize = essence.verticalFrameSize = 1;

        essence.Clear(row.type);

        EXPECT_EQ(Numbers(essence.Type(), essence.recordingStatus, essence.Metadata(), essence.VideoCompressionType(),
                          essence.AudioCompressionType(), essence.VideoCompressionInfo(), essence.archiveStatus,
                          essence.blockSize, essence.audioConfiguration, essence.videoCompressionRate,
                          essence.audioCompressionRate, essence.horizontalFrameSize, essence.verticalFrameSize),
                  Numbers(row.type, RecordingStatus::NotPresent, row.metadata, row.video, row.audio, row.info, 0, 0, 0,
                          0, 0, 0, 0));
        EXPECT_EQ(essence == Clip::Essence(), row.type == Type::Intra);
    }
}

} // namespace
} // namespace Talvo::Corvane::Data::Clips
