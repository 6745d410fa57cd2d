#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Clips
{
class Clip;
} // namespace Talvo::Corvane::Data::Clips

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

namespace Generated
{
class Clip;
} // namespace Generated

/// Applies the fields of the wire record `Clip` whose flag is set to a domain `Clip`. The destination is not reset.
///
/// Failures, with the fields before them already applied:
/// - "In Bound TOD Timecode Rate inconsistent with Clip Rate" or "In Bound User Timecode Rate inconsistent with Clip
///   Rate": the time code does not agree with the clip's video standard.
/// - "Essence is empty": an essence has no flag set.
/// - "Clip is empty": no field is set. An empty `keywords` or `userBits` does not count, nor do
///   `sourceInBoundTodTimecode` and `sourceInBoundUserTimecode`, which are never read.
///
/// Ends the process: an `inBoundTodTimecode` or `inBoundUserTimecode` that TalvoTimeCodeParser rejects.
///
/// Lost: identifiers above 8 bytes, text slots above their size, keywords beyond the fifth and user bits beyond the
/// eighth are cut; shorter texts are filled with zeros, not blanks; the high word of numbers that are 32-bit in the
/// domain, and all but the low byte of a user bit; `isLegacyTimecodeDrop`, unless the destination was `Ntsc` before the
/// call; unknown enumeration numbers, which read as 0.
class ThriftToClipConverter : public Converter<Generated::Clip, Corvane::Data::Clips::Clip>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::Clip const& source, Corvane::Data::Clips::Clip& destination) const;

    ConversionResult To(Generated::Clip const& source, Corvane::Data::Clips::Clip& destination) const noexcept override;

    ConversionResult To(Generated::Clip&& source, Corvane::Data::Clips::Clip& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
