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
        EXPECT_THAT([&] { SequenceId(server, location); },
                    testing::ThrowsMessage<std::invalid_argument>("SequenceId.Location : invalid location number"));
}

} // namespace
} // namespace Talvo::Corvane::Data::Sequences
