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

/// Applies the fields of the wire record `PlayerState` whose flag is set to a domain `PlayerState`. The destination is
/// not reset.
///
/// If `infoOnAir` is set, its fields are read regardless of their own flags, except `playoutConfig` and the two speeds;
/// each speed needs both of its flags.
///
/// Failures, with the fields before them already applied:
/// - any failure of ThriftToPlayerClipOnAirConverter, from `pgmOnAir` or `previewOnAir`.
/// - "PlayerState is empty": no field is set. `inBoundary` and `outBoundary` don't count, but are applied.
///
/// Ends the process: anything that ends it in ThriftToPlayerClipOnAirConverter. The eight time codes of this record
/// itself don't end it.
///
/// Lost: an invalid time code text is skipped; a boundary that ThriftToLoadBoundaryConverter rejects replaces the
/// destination's with a new one; a name above 24 bytes is cut; the high words of `serial` and
/// `audioPgmInstructionDecSpeedD`; unknown enumeration numbers read as 0; for the clips on air, what
/// ThriftToClipConverter loses.
class ThriftToPlayerStateConverter : public Converter<Generated::PlayerState, Corvane::Data::Channels::PlayerState>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::PlayerState const& source,
                               Corvane::Data::Channels::PlayerState& destination) const;

    ConversionResult To(Generated::PlayerState const& source,
                        Corvane::Data::Channels::PlayerState& destination) const noexcept override;

    ConversionResult To(Generated::PlayerState&& source,
                        Corvane::Data::Channels::PlayerState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
