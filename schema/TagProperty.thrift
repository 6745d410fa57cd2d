namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated

enum TagPropertyKey {
    Value = 0,
    Status = 1,
    Type = 2,
    Id = 3,
    UserId = 4,
    VarId = 5,
    Name = 6,
    OutputNumber = 7,
    Duration = 8,
    MixDuration = 9,
    XAxis = 10,
    YAxis = 11,
    Height = 12,
    Width = 13,
    TargetMonos = 14,
    Levels = 15,
    Activation = 16,
    TriggerType = 17
}

enum TagPropertyType {
    Boolean = 0,
    Integer = 1,
    String = 2,
    Vector = 3
}

struct TagProperty {
    1: TagPropertyType dataType
    2: list<i32> value
}
