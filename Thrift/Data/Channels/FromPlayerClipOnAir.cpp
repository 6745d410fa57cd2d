#include "Thrift/Data/Channels/FromPlayerClipOnAir.h"

#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/PlayerClipOnAir_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;

ConversionResult PlayerClipOnAirToThriftConverter::To(Corvane::Data::Channels::PlayerClipOnAir const& source,
                                                      Generated::PlayerClipOnAir& destination) const noexcept
{
    Clips::ClipToThriftConverter const fromClip;

    if (source.hasClipOnAir)
    {
        if (auto const result = fromClip.To(source.clipOnAir, destination.clipOnAir); !result.success)
            return Nested(result);
        destination.__isset.clipOnAir = true;
    }
    if (IsPresent(source.curTimePointOnAir))
        TALVO_FLAGGED(destination, curTimePointOnAir) = source.curTimePointOnAir.position;
    if (IsPresent(source.todCurTimecodeOnAir))
        WriteTimeCode(source.todCurTimecodeOnAir, TALVO_FLAGGED(destination, todCurTimecodeOnAir));
    if (IsPresent(source.userCurTimecodeOnAir))
        WriteTimeCode(source.userCurTimecodeOnAir, TALVO_FLAGGED(destination, userCurTimecodeOnAir));
    return Success();
}

ConversionResult PlayerClipOnAirToThriftConverter::To(Corvane::Data::Channels::PlayerClipOnAir&& source,
                                                      Generated::PlayerClipOnAir& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
