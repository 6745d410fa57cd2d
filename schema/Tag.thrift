include "TagProperty.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

enum CommandType {
    Custom = 0,
    GpiOut = 1,
    GpiOutOnEffect = 2,
    GpiOutAvsp = 3,
    SwapAudio = 4,
    LevelAudioIn = 5,
    LevelAudioOut = 6,
    Blurring = 7,
    Mute = 8,
    Hide = 9,
    Comment = 10,
    Group = 11,
    TriggerBroadcastIp = 12,
    VirtualElementVarId = 13,
    VirtualElementName = 14
}

struct Tag {
    1: i32 id
    2: CommandType commandType
    3: i64 field
    4: map<TagProperty.TagPropertyKey, TagProperty.TagProperty> properties
}
