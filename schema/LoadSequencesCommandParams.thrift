include "Guid.thrift"

namespace cpp Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated

struct LoadSequenceCommandParam {
    1: Guid.Guid sequence
    2: i64 durationFromBeginning
    3: bool isForDiffusion
}

struct LoadSequencesCommandParams {
    1: Guid.Guid commandGuid
    2: map<Guid.Guid, LoadSequenceCommandParam> playersParameters
}
