include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

enum ServerRange {
    Local = 0,
    Remote = 1,
    LocalAndRemote = 2
}

struct GetServersCommandParams {
    1: Guid.Guid commandGuid
    2: ServerRange serverRange
}
