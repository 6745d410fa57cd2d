include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetMultiviewerDataCommandParams {
    1: required Guid.Guid commandGuid
}
