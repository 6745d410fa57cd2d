include "Guid.thrift"

namespace cpp Talvo.Corvane.Data.Generated

enum ProgramMode {
    Program = 0,
    Preview = 1
}

enum ControlMode {
    Lever = 0,
    Full = 1,
    None = 2
}

struct PlayerDataOverrides {
    1: required Guid.Guid playerGuid
    2: optional i64 clipCreationIn
    3: optional i64 clipCreationOut
    4: optional bool isFirstControlledMediaOutput
    5: optional ControlMode controlMode
    6: optional ProgramMode programMode
    7: optional bool isPostRollEnabled
    8: optional string message
}
