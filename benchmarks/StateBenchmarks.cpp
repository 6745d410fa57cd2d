#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"

#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/PlayerState_types.h"
#include "tests/Thrift/Data/Channels/Values.h"

namespace Talvo::Benchmarks
{

namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using Corvane::Data::Channels::PlayerState;
using Corvane::Data::Clips::Clip;
using Event = Corvane::Notification::ClipCreationFinishedEventArgs;

Event CreationOf(Clip const& source, Clip const& created)
{
    return {310042,
            Event::RequestSource::Network,
            7,
            1,
            Corvane::Data::Guid::Generate(),
            12,
            source,
            created,
            Event::CreationType::Copy,
            Event::NetworkType::PushGbe};
}

} // namespace

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
        []
        {
            static auto const fresh = CreationOf(Clip(), Clip());
            return fresh;
        });
}

} // namespace Talvo::Benchmarks
