namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct DisconnectedFromNetworkEventArgs {
    1: i32 serverId
}
