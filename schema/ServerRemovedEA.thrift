namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ServerRemovedEventArgs {
    1: i32 serverId
}
