include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct DeleteAnglesGroupCommandParams {
    1: required Guid.Guid commandGuid
    2: required Guid.Guid groupGuid
}
