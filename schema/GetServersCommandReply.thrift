include "Guid.thrift"
include "ServerInfo.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct GetServersCommandReply {
    1: Guid.Guid guid
    2: list<ServerInfo.ServerInfo> servers
}
