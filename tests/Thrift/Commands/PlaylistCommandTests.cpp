#include "tests/Thrift/Commands/ResultsItems.h"

#include "records/Commands.h"
#include "tests/Thrift/Data/Sequences/Values.h"

#include <gtest/gtest.h>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::OperationStatus;
using Corvane::Data::Sequences::Playlist;
using WireStatusOf = Corvane::Data::Generated::OperationStatusStatus;

using Item = Converters<PlaylistResultsItemToThriftConverter, ThriftToPlaylistResultsItemConverter>;

Playlist NamedPlaylist(char const* const umId)
{
    auto playlist = FullPlaylist();
    playlist.umId = SomeUmId(umId);
    return playlist;
}

TEST(PlaylistResultsItemConversion, WritesThePlaylistRegardlessOfTheStatus)
{
    for (auto const& status : {Succeeded, Refused})
    {
        for (auto const& playlist : {FullPlaylist(), Playlist::Empty()})
        {
            auto const item = SomeItem<PlaylistResultsItem>(status, playlist);
            auto const wire = Item::Sent(item);
            EXPECT_TRUE(wire.__isset.operationStatus && wire.__isset.playlist);
            EXPECT_EQ(Shown(Item::Received(wire)), Shown(item));
        }
        Generated::PlaylistResultsItem used;
        used.__isset.playlist = true;
        EXPECT_FALSE(Item::Sent(SomeItem<PlaylistResultsItem>(status), used).__isset.playlist);
    }
}

TEST(PlaylistResultsItemConversion, KeepsTheReceivedPlaylistRegardlessOfTheStatus)
{
    auto const sent = Item::Sent(SomeItem<PlaylistResultsItem>(Succeeded, NamedPlaylist("SENT")));
    auto const expectReceived =
        [&](bool const hasStatus, bool const hasPlaylist, OperationStatus const& status, char const* const umId)
    {
        auto wire = sent;
        wire.operationStatus = WireStatus(WireStatusOf::Failed);
        wire.__isset.operationStatus = hasStatus;
        wire.__isset.playlist = hasPlaylist;
        auto item = SomeItem<PlaylistResultsItem>(Refused, NamedPlaylist("HELD"));
        EXPECT_EQ(Item::Told(wire, item), hasStatus || hasPlaylist ? "" : "PlaylistResultsItem is empty");
        EXPECT_EQ(item.OperationStatus(), status);
        EXPECT_STREQ(item.playlist == nullptr ? "none" : item.playlist->umId.GetUmId(), umId);
    };
    expectReceived(true, true, StartOfAnItem, "SENT"); // a failed item that holds a playlist
    expectReceived(true, false, StartOfAnItem, "none");
    expectReceived(false, true, Refused, "SENT");
    expectReceived(false, false, Refused, "HELD"); // untouched

    auto wire = sent;
    wire.operationStatus = {};
    wire.playlist = {};
    EXPECT_EQ(Shown(Item::Received(wire, SomeItem<PlaylistResultsItem>(Succeeded))),
              Shown(SomeItem<PlaylistResultsItem>(StartOfAnItem, Playlist::Empty())));
}

} // namespace
} // namespace Talvo::Tests
