include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct StopRecordingCommandParams {
    1: Guid.Guid commandGuid
    2: set<Guid.Guid> recorders
}
