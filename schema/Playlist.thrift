include "AudioVideoTrack.thrift"
include "Sequence.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

struct Playlist {
    1: AudioVideoTrack.AudioVideoTrack audioVideoTrack
    2: string auxTrackClipUmId
    3: Sequence.Sequence sequence
}
