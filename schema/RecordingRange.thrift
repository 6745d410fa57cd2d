namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Clips.Generated

struct RecordingRange {
    1: i64 inBoundTimepoint
    2: i64 outBoundTimepoint
    3: string inBoundTimecode
    4: string outBoundTimecode
}
