#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "generated/Playlist_types.h"

#include <cstddef>
#include <memory>
#include <tuple>

namespace Talvo::Benchmarks
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
using Corvane::Data::Sequences::Playlist;

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
