include "Element.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

struct AudioVideoElement {
    1: Element.VideoEffectType videoEffectType
    2: Element.AudioEffectType audioEffectType
    3: i32 videoEffectDuration
    4: i32 audioEffectDuration
    5: i64 videoFieldIn
    6: i64 videoFieldOut
    7: i64 audioFieldIn
    8: i64 audioFieldOut
    9: Element.Element element
}
