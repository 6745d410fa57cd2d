include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated

struct ClipCommandEventArgs {
    1: i64 localMachineSerial
    2: string requestSource
    3: i32 operationNumber
    4: i32 userTicket
    5: Guid.Guid commandGuid
    6: i32 subCommandIndex
}
