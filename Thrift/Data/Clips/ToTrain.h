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

/// Replaces a domain `Train` by the wire record `Train`; what was not sent reads as no clip, no range, false, and an
/// empty time code.
///
/// Failures:
/// - any of ThriftToClipConverter, from `trainData`; the destination is then unchanged.
/// - "Train is empty": no flag is set; the destination is by then the empty train.
///
/// Ends the process: a time code of `trainData` that ends it in ThriftToClipConverter.
///
/// Lost on the way: a range that is incomplete or has a bad time code is kept as a range of four empties, so the number
/// of ranges stays; a `lastKnownTimeCode` that is no time code text reads as empty.
class ThriftToTrainConverter : public Converter<Generated::Train, Corvane::Data::Clips::Train>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::Train const& source, Corvane::Data::Clips::Train& destination) const;

    ConversionResult To(Generated::Train const& source,
                        Corvane::Data::Clips::Train& destination) const noexcept override;

    ConversionResult To(Generated::Train&& source, Corvane::Data::Clips::Train& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
