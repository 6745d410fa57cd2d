include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct UpdateAnglesGroupCommandParams {
    1: required Guid.Guid commandGuid
    2: required Guid.Guid groupGuid
    3: optional Guid.Guid primaryAngle
    4: optional Guid.Guid secondaryAngle
}
