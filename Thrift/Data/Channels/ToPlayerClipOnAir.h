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

/// Applies the fields of the wire record `PlayerClipOnAir` whose flag is set to a domain `PlayerClipOnAir`, as it
/// stands. None at all is no failure.
///
/// A clip replaces the one of the destination and sets `hasClipOnAir`, which nothing clears.
///
/// Failures: any of ThriftToClipConverter, from `clipOnAir`; the destination is then unchanged.
///
/// Ends the process: a `todCurTimecodeOnAir` or `userCurTimecodeOnAir` that is no time code text, and what ends it in
/// ThriftToClipConverter.
///
/// Lost on the way: of the clip what ThriftToClipConverter loses.
class ThriftToPlayerClipOnAirConverter
    : public Converter<Generated::PlayerClipOnAir, Corvane::Data::Channels::PlayerClipOnAir>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::PlayerClipOnAir const& source,
                               Corvane::Data::Channels::PlayerClipOnAir& destination) const;

    ConversionResult To(Generated::PlayerClipOnAir const& source,
                        Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept override;

    ConversionResult To(Generated::PlayerClipOnAir&& source,
                        Corvane::Data::Channels::PlayerClipOnAir& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
