namespace cpp Talvo.Corvane.Data.Generated

enum OperationResult {
    Success = 0,
    InvalidParameter = 1,
    InvalidBound = 2,
    ResourceNotFound = 3,
    ResourceNotReadable = 4,
    ResourceUnavailable = 5,
    ProtectedResource = 6,
    UsedResource = 7,
    TemporaryError = 8,
    NotSupported = 9,
    DefaultError = 10,
    Unknown = 11
}
