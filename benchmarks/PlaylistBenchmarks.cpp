#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "generated/Playlist_types.h"
#include "tests/Thrift/Data/Sequences/Values.h"

#include <cstddef>
#include <memory>
#include <tuple>

namespace Talvo::Benchmarks
{

namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
using Corvane::Data::Sequences::Playlist;
using Corvane::Data::Sequences::Tag;
using Corvane::Data::Sequences::TagProperty;

/// A playlist of `count` elements with three tags each, of two properties each.
Playlist PlaylistOf(std::size_t const count)
{
    Tag tag(Tag::CommandType::GpiOut);
    tag.id = 1;
    tag.field = 1200;
    tag.properties.emplace(TagProperty::Key::OutputNumber, TagProperty(3));
    tag.properties.emplace(TagProperty::Key::Duration, TagProperty(50));
    auto element = Tests::FullElement();
    element.tags.assign(3, tag);

    auto playlist = Tests::FullPlaylist();
    playlist.audioVideoTrack.elements.assign(count, element);
    return playlist;
}

} // namespace

void AddPlaylists(Comparisons& rows)
{
    AddRecord<PlaylistToThriftConverter, ThriftToPlaylistConverter, Generated::Playlist>(
        rows, "playlist of 500", PlaylistOf(500), {.toNewRecordOfCopy = 1.3, .toDomain = 1.0, .toDomainOfCopy = 1.3},
        [](Generated::Playlist&) {});

    AddLinear(rows, "elements to wire", 500, 5'000,
              [](std::size_t const count)
              {
                  return [playlist = std::make_shared<Playlist>(PlaylistOf(count))]
                  {
                      Generated::Playlist wire;
                      std::ignore = PlaylistToThriftConverter().To(*playlist, wire);
                      return wire;
                  };
              });
    AddLinear(rows, "wire to elements", 500, 5'000,
              [](std::size_t const count)
              {
                  auto const sent = std::make_shared<Generated::Playlist>();
                  std::ignore = PlaylistToThriftConverter().To(PlaylistOf(count), *sent);
                  return [sent]
                  {
                      Playlist playlist;
                      std::ignore = ThriftToPlaylistConverter().To(*sent, playlist);
                      return playlist;
                  };
              });
}

} // namespace Talvo::Benchmarks
