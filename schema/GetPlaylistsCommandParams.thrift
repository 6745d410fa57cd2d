include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

enum ElementConversionMode {
    Lazy = 0,
    Normal = 1,
    OnlyRelative = 2
}

struct GetPlaylistsCommandParams {
    1: Guid.Guid commandGuid
    2: ElementConversionMode elementMode
    3: optional Guid.Guid idFilter
}
