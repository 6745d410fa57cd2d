namespace cpp Talvo.Corvane.Data.Generated

struct Guid {
    1: string value
}
