#include "Thrift/Data/Sequences/FromPlaylist.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Data/Sequences/FromAudioVideoTrack.h"
#include "Thrift/Data/Sequences/FromSequence.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/Playlist_types.h"

#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;

ConversionResult PlaylistToThriftConverter::To(Corvane::Data::Sequences::Playlist const& source,
                                               Generated::Playlist& destination) const noexcept
{
    AudioVideoTrackToThriftConverter const fromTrack;
    SequenceToThriftConverter const fromSequence;

    Generated::AudioVideoTrack track;
    if (auto const result = fromTrack.To(source.audioVideoTrack, track); !result.success) return Nested(result);
    TALVO_FLAGGED(destination, audioVideoTrack) = std::move(track);
    TALVO_FLAGGED(destination, auxTrackClipUmId) = source.auxTrackClipUmId.GetUmId();
    // A header that fails is written with what was converted before the failure.
    std::ignore = fromSequence.To(source, TALVO_FLAGGED(destination, sequence));
    return Success();
}

ConversionResult PlaylistToThriftConverter::To(Corvane::Data::Sequences::Playlist&& source,
                                               Generated::Playlist& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
