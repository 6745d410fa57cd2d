#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace Talvo::Corvane::Data::Sequences
{
namespace
{

// Lists of them grow without copying.
static_assert(std::is_nothrow_move_constructible_v<Tag> && std::is_nothrow_move_constructible_v<AudioVideoElement>);

TEST(Sequence, HasItsDefaultsWhenNew)
{
    Sequence const sequence;
    EXPECT_EQ(sequence.id, SequenceId(Servers::ServerId::None(), 0));
    EXPECT_STREQ(sequence.umId.GetUmId(), "");
    EXPECT_FALSE(sequence.varId.isUtf16 || sequence.name.isUtf16 || sequence.isTimeCodeRegen);
    EXPECT_THAT(sequence.varId.payload, testing::Each(' '));
    EXPECT_THAT(sequence.name.payload, testing::Each(' '));
    EXPECT_EQ(sequence.timeCodeRegenReference, Clips::Clip::DefaultTimecode());
    EXPECT_NE(sequence.timeCodeRegenReference, TimePoints::TimeCode::Empty());
    EXPECT_EQ(sequence.timeCodeRegenBase, TimeCodeRegenBase::Field);
    EXPECT_EQ(sequence.timeCodeRegenSource, TimeCodeRegenSource::PlaylistRefTimecode);
    EXPECT_EQ(sequence.timeCodeRegenOutput, TimeCodeRegenOutput::None);
    EXPECT_EQ(sequence.timeCodeRegenType, TimeCodeRegenType::FullPlaylist);
    EXPECT_EQ(sequence.durationWithoutEffects, 0);
    EXPECT_EQ(sequence.durationWithEffects, 0);
    EXPECT_EQ(sequence.playRate, (TimePoints::VideoRate{1, 1}));
    EXPECT_TRUE(sequence.isFixedDuration);
    EXPECT_EQ(sequence.archiveStatus, Clips::ArchiveStatus::NoStore);
}

TEST(SequenceId, RefusesALocationAbove109)
{
    Servers::ServerId const server(7);
    EXPECT_EQ(SequenceId(server, 109).Location(), 109u);
    for (auto const location : {110u, 0x80000000u, std::numeric_limits<std::uint32_t>::max()})
    {
        try
        {
            SequenceId const id(server, location);
            ADD_FAILURE() << location;
        }
        catch (std::invalid_argument const& error)
        {
            EXPECT_STREQ(error.what(), "SequenceId.Location : invalid location number");
        }
    }
}

TEST(Element, HasItsDefaultsWhenNew)
{
    AudioVideoElement const element;
    EXPECT_EQ(element.id, 0);
    EXPECT_EQ(element.sequenceId, SequenceId());
    EXPECT_EQ(element.position, 0);
    EXPECT_STREQ(element.umId.GetUmId(), "");
    EXPECT_EQ(element.inBoundaryType, BoundaryType::Absolute);
    EXPECT_EQ(element.outBoundaryType, BoundaryType::Absolute);
    EXPECT_EQ(element.effectPosition, EffectPosition::None);
    EXPECT_EQ(element.stillMode, StillMode::None);
    EXPECT_EQ(element.transitionTimer, 0);
    EXPECT_TRUE(element.tags.empty());
    EXPECT_EQ(element.speed.numerator, 0);
    EXPECT_EQ(element.speed.denominator, 1);
    EXPECT_EQ(element.internalLoopId, -1);
    EXPECT_EQ(element.internalLoopRunNb, 0);
    EXPECT_EQ(element.videoEffectType, VideoEffectType::None);
    EXPECT_EQ(element.audioEffectType, AudioEffectType::None);
    EXPECT_EQ(element.videoEffectDuration, 0);
    EXPECT_EQ(element.audioEffectDuration, 0);
    EXPECT_EQ(element.videoFieldIn, 0);
    EXPECT_EQ(element.videoFieldOut, 0);
    EXPECT_EQ(element.audioFieldIn, 0);
    EXPECT_EQ(element.audioFieldOut, 0);
}

TEST(Tag, HoldsItsTypeAloneWhenNew)
{
    Tag const tag(Tag::CommandType::Blurring);
    EXPECT_EQ(tag.commandType, Tag::CommandType::Blurring);
    EXPECT_EQ(tag.id, 0);
    EXPECT_EQ(tag.field, 0);
    EXPECT_TRUE(tag.properties.empty());
    EXPECT_GE(tag.properties.bucket_count(), 10u);
    EXPECT_EQ(tag.properties.max_load_factor(), 1.0f);
    EXPECT_EQ(TagProperty(-3).type, TagProperty::Type::Integer);
    EXPECT_THAT(TagProperty(-3).value, testing::ElementsAre(-3));
}

TEST(Playlist, IsCopiedDeep)
{
    Playlist playlist = Playlist::Empty();
    EXPECT_EQ(playlist, Playlist());
    EXPECT_EQ(playlist.audioVideoTrack.numberOfElements, 0);
    auto& tag = playlist.audioVideoTrack.elements.emplace_back().tags.emplace_back(Tag::CommandType::Custom);
    tag.properties.emplace(TagProperty::Key::Value, TagProperty(1));

    auto const copy = playlist;
    EXPECT_EQ(copy, playlist);
    tag.properties.at(TagProperty::Key::Value).value[0] = 2;
    EXPECT_NE(copy, playlist);
    EXPECT_THAT(copy.audioVideoTrack.elements[0].tags[0].properties.at(TagProperty::Key::Value).value,
                testing::ElementsAre(1));
    EXPECT_TRUE(Playlist::Empty().audioVideoTrack.elements.empty());
}

} // namespace
} // namespace Talvo::Corvane::Data::Sequences
