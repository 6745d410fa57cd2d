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
/// The destination is expected to be new and is not reset. These stay off the wire, with value and flag as they were:
/// empty time points and time codes, a `globalLoopMode` or `playoutConfig` of 0, and a speed of which numerator or
/// denominator is 0, which is lost as a pair. A time code that is undated or has a frame above
/// 99 goes out as a text that ThriftToPlayerStateConverter skips.
///
/// Lost on the way: domain enumerators outside their table, which travel as 0.
class PlayerStateToThriftConverter : public Converter<Corvane::Data::Channels::PlayerState, Generated::PlayerState>
{
public:
    ConversionResult To(Corvane::Data::Channels::PlayerState const& source,
                        Generated::PlayerState& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::PlayerState&& source,
                        Generated::PlayerState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
