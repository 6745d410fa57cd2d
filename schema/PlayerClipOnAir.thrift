include "Clip.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated

struct PlayerClipOnAir {
    1: optional Clip.Clip clipOnAir
    2: optional i64 curTimePointOnAir
    3: optional string todCurTimecodeOnAir
    4: optional string userCurTimecodeOnAir
}
