#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Clips
{
class Train;
} // namespace Talvo::Corvane::Data::Clips

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

namespace Generated
{
class Train;
} // namespace Generated

/// Replaces a domain `Train` with the wire record `Train`; fields that were not sent read as no clip, no ranges, false,
/// and an empty time code.
///
/// Failures:
/// - any failure of ThriftToClipConverter, from `trainData`; the destination is then unchanged.
/// - "Train is empty": no flag is set; the destination is then an empty train.
///
/// Ends the process: a time code of `trainData` that ends it in ThriftToClipConverter.
///
/// Lost: a range that is incomplete or has an invalid time code becomes a range with four empty fields, so the number
/// of ranges is kept; a `lastKnownTimeCode` that is not a valid time code text reads as empty.
class ThriftToTrainConverter : public Converter<Generated::Train, Corvane::Data::Clips::Train>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::Train const& source, Corvane::Data::Clips::Train& destination) const;

    ConversionResult To(Generated::Train const& source,
                        Corvane::Data::Clips::Train& destination) const noexcept override;

    ConversionResult To(Generated::Train&& source, Corvane::Data::Clips::Train& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
