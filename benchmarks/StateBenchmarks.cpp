#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/PlayerState_types.h"

namespace Talvo::Benchmarks
{

using namespace Corvane::Zelmar::Serialization::Thrift;

void AddStatesAndEvents(Comparisons& rows)
{
    AddRecord<Data::Channels::PlayerStateToThriftConverter, Data::Channels::ThriftToPlayerStateConverter,
              Data::Channels::Generated::PlayerState>(rows, "player state", Tests::FullPlayerState(),
                                                      {.toNewRecord = 0.70, .toDomain = 0.35},
                                                      [](Data::Channels::Generated::PlayerState& wire)
                                                      {
                                                          wire.pgmOnAir.clipOnAir.userBits.clear();
                                                          wire.previewOnAir.clipOnAir.userBits.clear();
                                                      });

    AddRecord<Notifier::ClipCreationFinishedEventArgsToThriftConverter,
              Notifier::ThriftToClipCreationFinishedEventArgsConverter,
              Notifier::Generated::ClipCreationFinishedEventArgs>(
        rows, "clip creation event", CreationOf(Tests::NestedClip(), Tests::NestedClip()),
        {.toNewRecord = 0.55, .toDomain = 0.25},
        [](Notifier::Generated::ClipCreationFinishedEventArgs& wire)
        {
            wire.sourceClip.userBits.clear();
            wire.newClip.userBits.clear();
        },
        &FreshCreation);
}

} // namespace Talvo::Benchmarks
