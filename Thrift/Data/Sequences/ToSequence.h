#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Sequence;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Sequence;
} // namespace Generated

/// Applies the fields of the wire record `Sequence` whose flag is set to a domain `Sequence`, as it stands. The flags
/// inside its `id` and its texts are not looked at.
///
/// The play rate is taken only when both of its flags are set: with the denominator 1 as it stands, else by its
/// numerator alone, which has to be that of a standard rate, over 1001.
///
/// Failures, with what was applied before them left in the destination:
/// - "Invalid TimeCode format (" + the parser's text + ")": `timeCodeRegenReference` has the form of no time code.
/// - "Invalid sequence rate " + numerator + ":" + denominator: no standard rate has that numerator.
/// - "Sequence is empty": none of `id`, `umId`, `varId`, `name`, `timeCodeRegenReference` and `archiveStatus` was
///   there, though others may have been applied.
///
/// Ends the process: a location below 0 or above 109, and a `timeCodeRegenReference` that has the form of a time code
/// but names none (a value out of range, a number that drop-frame skips, a rate too large for an `int`).
///
/// Lost on the way: `umId` above 8 bytes, `varId` above 32 and `name` above 24 are cut, shorter texts are filled with
/// zeros, not blanks; a play rate of which only one flag is set; unknown enumeration numbers, which read as 0.
class ThriftToSequenceConverter : public Converter<Generated::Sequence, Corvane::Data::Sequences::Sequence>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::Sequence const& source,
                               Corvane::Data::Sequences::Sequence& destination) const;

    ConversionResult To(Generated::Sequence const& source,
                        Corvane::Data::Sequences::Sequence& destination) const noexcept override;

    ConversionResult To(Generated::Sequence&& source,
                        Corvane::Data::Sequences::Sequence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
