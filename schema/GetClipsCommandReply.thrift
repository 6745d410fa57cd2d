include "Clip.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetClipsCommandReply {
    1: Guid.Guid guid
    2: i64 revision
    3: list<Clip.Clip> clips
}
