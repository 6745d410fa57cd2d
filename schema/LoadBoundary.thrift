namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated

enum LoadBoundaryType {
    Absolute = 0,
    RelativeToCorrespondingClipBoundary = 1,
    RelativeToOppositeClipBoundary = 2,
    RelativeToOppositeLoadBoundary = 3
}

struct AbsoluteLoadBoundary {
    1: i64 timepoint
}

struct RelativeLoadBoundary {
    1: i64 fieldCount
}

struct SpecializedLoadBoundary {
    1: optional AbsoluteLoadBoundary absoluteLoadBoundary
    2: optional RelativeLoadBoundary relativeLoadBoundary
}

struct LoadBoundary {
    1: LoadBoundaryType type
    2: SpecializedLoadBoundary specializedLoadBoundary
}
