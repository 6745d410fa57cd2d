namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

struct SequenceId {
    1: i32 location
    2: i32 serverId
}
