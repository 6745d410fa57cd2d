include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct PlayCommandParams {
    1: Guid.Guid commandId
    2: set<Guid.Guid> players
    3: i32 speedNum
    4: i32 speedDen
}
