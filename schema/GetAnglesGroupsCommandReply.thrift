include "AnglesGroup.thrift"
include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetAnglesGroupsCommandReply {
    1: Guid.Guid guid
    2: i64 revision
    3: list<AnglesGroup.AnglesGroup> groups
}
