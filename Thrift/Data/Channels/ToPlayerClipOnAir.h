#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Channels
{
struct PlayerClipOnAir;
} // namespace Talvo::Corvane::Data::Channels

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

namespace Generated
{
class PlayerClipOnAir;
} // namespace Generated

/// Applies the fields of the wire record `PlayerClipOnAir` whose flag is set to a domain `PlayerClipOnAir`. The
/// destination is not reset. A record without any set flag is not a failure.
///
/// A clip replaces the destination's and sets `hasClipOnAir`, which is never cleared.
///
/// Failures: any failure of ThriftToClipConverter, from `clipOnAir`; the destination is then unchanged.
///
/// Ends the process: a `todCurTimecodeOnAir` or `userCurTimecodeOnAir` that is not a valid time code text, and anything
/// that ends it in ThriftToClipConverter.
///
/// Lost: for the clip, what ThriftToClipConverter loses.
class ThriftToPlayerClipOnAirConverter
    : public Converter<Generated::PlayerClipOnAir, Corvane::Data::Channels::PlayerClipOnAir>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::PlayerClipOnAir const& source,
                               Corvane::Data::Channels::PlayerClipOnAir& destination) const;

    ConversionResult To(Generated::PlayerClipOnAir const& source,
                        Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept override;

    ConversionResult To(Generated::PlayerClipOnAir&& source,
                        Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
