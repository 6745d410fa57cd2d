#include "Thrift/Data/Sequences/ToPlaylist.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Data/Sequences/ToAudioVideoTrack.h"
#include "Thrift/Data/Sequences/ToSequence.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/Playlist_types.h"

#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::AudioVideoElement;
using Corvane::Data::Sequences::Track;

ConversionResult ThriftToPlaylistConverter::ToOrThrow(Generated::Playlist const& source,
                                                      Corvane::Data::Sequences::Playlist& destination) const
{
    ThriftToAudioVideoTrackConverter const toTrack;
    ThriftToSequenceConverter const toSequence;
    auto const& isset = source.__isset;
    SeenFields seen;

    // The results of the parts are ignored: a track that fails is stored with the elements before the failure, and the
    // header keeps what was applied before its failure.
    if (seen(isset.audioVideoTrack))
    {
        Track<AudioVideoElement> track;
        std::ignore = Read("audioVideoTrack", toTrack, source.audioVideoTrack, track);
        destination.audioVideoTrack = std::move(track);
    }
    if (seen(isset.auxTrackClipUmId)) destination.auxTrackClipUmId.SetUmId(source.auxTrackClipUmId.c_str());
    if (seen(isset.sequence)) std::ignore = Read("sequence", toSequence, source.sequence, destination);
    return seen.None() ? Failure("Playlist is empty") : Success();
}

ConversionResult ThriftToPlaylistConverter::To(Generated::Playlist const& source,
                                               Corvane::Data::Sequences::Playlist& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToPlaylistConverter::To(Generated::Playlist&& source,
                                               Corvane::Data::Sequences::Playlist& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
