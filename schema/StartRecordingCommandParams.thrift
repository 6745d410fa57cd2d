include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct StartRecordingCommandParams {
    1: Guid.Guid commandGuid
    2: set<Guid.Guid> recorders
}
