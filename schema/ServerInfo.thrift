namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Servers.Generated

enum ServerChassis {
    None = 0,
    Orvik_A = 1,
    Orvik_B = 2,
    Senta_B = 3,
    OrvikMax_B = 4,
    OrvikMini_A = 5,
    Quill_A = 6,
    Tarn_A = 7,
    Tarn_B = 8,
    Wessa_A = 9,
    Wessa_C = 10,
    Wessa_B = 11,
    WessaMini_A = 12,
    Yarrow_A = 13,
    Yarrow_B = 14,
    Tarn_Q = 15,
    Wessa_Q = 16,
    TarnLink = 17,
    WessaPro = 18
}

struct ServerInfo {
    1: i32 serverId
    2: i32 userNumber
    3: string corvaneVersion
    4: ServerChassis serverChassis
    5: string hardwareRevision
    6: string hostName
    7: i32 kronoIpAddress
    8: list<i32> gbeIpAddresses
    9: bool isLocal
}
