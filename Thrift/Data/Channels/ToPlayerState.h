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

/// Applies the fields of the wire record `PlayerState` whose flag is set to a domain `PlayerState`, as it stands.
///
/// With `infoOnAir` set, its fields are taken whatever their own flags say, but for `playoutConfig` and the two speeds,
/// each of which needs both of its flags.
///
/// Failures, with what was applied before them left in the destination:
/// - any of ThriftToPlayerClipOnAirConverter, from `pgmOnAir` or `previewOnAir`.
/// - "PlayerState is empty": no field was there. `inBoundary` and `outBoundary` don't count, yet they are applied.
///
/// Ends the process: what ends it in ThriftToPlayerClipOnAirConverter. The eight time codes of this record itself
/// don't.
///
/// Lost on the way: a time code that is no time code text is skipped; a boundary that ThriftToLoadBoundaryConverter
/// refuses replaces the destination's by a new one; a name above 24 bytes is cut; the high words of `serial` and
/// `audioPgmInstructionDecSpeedD`; unknown enumeration numbers read as 0; of the clips on air what ThriftToClipConverter
/// loses.
class ThriftToPlayerStateConverter : public Converter<Generated::PlayerState, Corvane::Data::Channels::PlayerState>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::PlayerState const& source,
                               Corvane::Data::Channels::PlayerState& destination) const;

    ConversionResult To(Generated::PlayerState const& source,
                        Corvane::Data::Channels::PlayerState& destination) const noexcept override;

    ConversionResult To(Generated::PlayerState&& source,
                        Corvane::Data::Channels::PlayerState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
