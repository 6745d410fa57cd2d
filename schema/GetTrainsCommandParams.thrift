include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetTrainsCommandParams {
    1: Guid.Guid commandGuid
}
