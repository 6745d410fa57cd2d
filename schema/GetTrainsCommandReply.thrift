include "Guid.thrift"
include "Train.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetTrainsCommandReply {
    1: Guid.Guid guid
    2: i64 dbRevision
    3: list<Train.Train> trains
}
