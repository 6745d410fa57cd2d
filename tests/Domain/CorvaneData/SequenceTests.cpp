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

// Lists of these grow without copying their elements.
static_assert(std::is_nothrow_move_constructible_v<Tag> && std::is_nothrow_move_constructible_v<AudioVideoElement>);

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

TEST(Tag, HoldsOnlyItsTypeWhenNew)
{
    Tag const tag(Tag::CommandType::Blurring);
    EXPECT_EQ(tag.commandType, Tag::CommandType::Blurring);
    EXPECT_GE(tag.properties.bucket_count(), 10u);
    EXPECT_EQ(tag.properties.max_load_factor(), 1.0f);
    EXPECT_EQ(TagProperty(-3).type, TagProperty::Type::Integer);
    EXPECT_THAT(TagProperty(-3).value, testing::ElementsAre(-3));
}

TEST(Playlist, CopiesAreDeep)
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
