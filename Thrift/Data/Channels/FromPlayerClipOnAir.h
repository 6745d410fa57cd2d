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

/// Writes a domain `PlayerClipOnAir` into the wire record `PlayerClipOnAir`. It can't fail.
///
/// The clip is written only if `hasClipOnAir` is true, the time point and time codes only if they are not empty; fields
/// that are not written keep their value and flag. A time code that is undated or has a frame above 99 is written as a
/// text that can't be read back: ThriftToPlayerClipOnAirConverter ends the process on it.
class PlayerClipOnAirToThriftConverter
    : public Converter<Corvane::Data::Channels::PlayerClipOnAir, Generated::PlayerClipOnAir>
{
public:
    ConversionResult To(Corvane::Data::Channels::PlayerClipOnAir const& source,
                        Generated::PlayerClipOnAir& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::PlayerClipOnAir&& source,
                        Generated::PlayerClipOnAir& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
