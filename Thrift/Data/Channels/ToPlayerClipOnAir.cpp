#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"

#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/PlayerClipOnAir_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;

ConversionResult
ThriftToPlayerClipOnAirConverter::To(Generated::PlayerClipOnAir const& source,
                                     Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept
{
    Clips::ThriftToClipConverter const toClip;
    auto const& isset = source.__isset;

    if (isset.clipOnAir)
    {
        Corvane::Data::Clips::Clip clip;
        if (auto const result = toClip.To(source.clipOnAir, clip); !result.success) return Nested(result);
        destination.clipOnAir = clip;
        destination.hasClipOnAir = true;
    }
    if (isset.curTimePointOnAir) destination.curTimePointOnAir = {source.curTimePointOnAir};
    // Both read unguarded, unlike the time codes of the player state around this record.
    if (isset.todCurTimecodeOnAir) destination.todCurTimecodeOnAir = ParseTimeCode(source.todCurTimecodeOnAir);
    if (isset.userCurTimecodeOnAir) destination.userCurTimecodeOnAir = ParseTimeCode(source.userCurTimecodeOnAir);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
