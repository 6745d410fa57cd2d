include "CreateClipsCommandParams.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct CreateAnglesGroupCommandParams {
    1: Guid.Guid commandGuid
    2: i32 groupKviIndex
    3: CreateClipsCommandParams.CreateClipsCommandParams creationParams
}
