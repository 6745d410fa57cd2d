#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Channels
{
class PlayerState;
} // namespace Talvo::Corvane::Data::Channels

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

namespace Generated
{
class PlayerState;
} // namespace Generated

/// Writes a domain `PlayerState` into the wire record `PlayerState`. It can't fail.
///
/// The destination should be new; it is not reset. These fields are not written, and their value and flag are
/// unchanged: empty time points and time codes, a `globalLoopMode` or `playoutConfig` of 0, and a speed whose numerator
/// or denominator is 0; both numbers are then lost. A time code that is undated or has a frame above 99 is written as a
/// text that ThriftToPlayerStateConverter skips.
///
/// Lost: domain enumerators outside their table, which are written as 0.
class PlayerStateToThriftConverter : public Converter<Corvane::Data::Channels::PlayerState, Generated::PlayerState>
{
public:
    ConversionResult To(Corvane::Data::Channels::PlayerState const& source,
                        Generated::PlayerState& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::PlayerState&& source,
                        Generated::PlayerState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
