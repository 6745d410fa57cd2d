namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct UnknownCommandReply {
    1: string commandType
}
