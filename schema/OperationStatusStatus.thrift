namespace cpp Talvo.Corvane.Data.Generated

enum OperationStatusStatus {
    NotStarted = 0,
    Pending = 1,
    Succeeded = 2,
    Failed = 3
}
