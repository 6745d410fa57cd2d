include "AudioVideoElement.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

struct AudioVideoTrack {
    1: optional list<AudioVideoElement.AudioVideoElement> elements
    2: optional i32 numberOfElements
}
