#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"

#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/PlayerClipOnAir_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;

ConversionResult
ThriftToPlayerClipOnAirConverter::ToOrThrow(Generated::PlayerClipOnAir const& source,
                                            Corvane::Data::Channels::PlayerClipOnAir& destination) const
{
    Clips::ThriftToClipConverter const toClip;
    auto const& isset = source.__isset;

    if (isset.clipOnAir)
    {
        Corvane::Data::Clips::Clip clip;
        if (auto const result = Read("clipOnAir", toClip, source.clipOnAir, clip); !result.success)
            return Nested(result);
        destination.clipOnAir = clip;
        destination.hasClipOnAir = true;
    }
    if (isset.curTimePointOnAir) destination.curTimePointOnAir = {source.curTimePointOnAir};
    // Both are read unguarded, unlike the time codes of the enclosing player state.
    if (isset.todCurTimecodeOnAir)
        destination.todCurTimecodeOnAir = ParseTimeCode("todCurTimecodeOnAir", source.todCurTimecodeOnAir);
    if (isset.userCurTimecodeOnAir)
        destination.userCurTimecodeOnAir = ParseTimeCode("userCurTimecodeOnAir", source.userCurTimecodeOnAir);
    return Success();
}

ConversionResult
ThriftToPlayerClipOnAirConverter::To(Generated::PlayerClipOnAir const& source,
                                     Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToPlayerClipOnAirConverter::To(Generated::PlayerClipOnAir&& source,
                                     Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
