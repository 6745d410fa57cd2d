include "ServerInfo.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ServerAddedEventArgs {
    1: i32 serverId
    2: ServerInfo.ServerInfo serverInfo
}
