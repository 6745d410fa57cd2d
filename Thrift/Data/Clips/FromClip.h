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

/// Writes a domain `Clip` into the wire record `Clip`. It can't fail.
///
/// The destination should be new; it is not reset, and fields that are not written keep their value and flag.
/// - Identifier texts are written up to their first zero; text slots are written whole, never trimmed or transcoded,
///   with the flag that says whether they hold UTF-16.
/// - `keywords` always has five elements. `userBits` are appended to those in the destination, each 0 to 255.
/// - The 32-bit `legacyTimecodeOffset`, `userLock`, `thumbnailOffset`, `sequence` and `machineSerial` are
///   zero-extended.
/// - These are not written: a time code or time point that is empty, an essence that is `NotPresent`, and an
///   enumeration of 0 (such as `HdrProfile::Unknown`), except `trainStatus`, `archiveStatus`, `videoFormat`,
///   `videoStandard` and `userTimecodeType`.
/// - Lost: the reserved fields, and domain enumerators outside their table, which are written as 0.
/// - A time code that is undated or has a frame above 99 is written as a text that can't be read back:
///   ThriftToClipConverter ends the process on it.
class ClipToThriftConverter : public Converter<Corvane::Data::Clips::Clip, Generated::Clip>
{
public:
    ConversionResult To(Corvane::Data::Clips::Clip const& source, Generated::Clip& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Clip&& source, Generated::Clip& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
