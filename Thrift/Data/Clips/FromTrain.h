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

/// Writes a domain `Train` into the wire record `Train`. It can't fail.
///
/// - Without a clip the flag of `trainData` is cleared.
/// - Ranges are appended to those that the destination holds, and the flag of `recordingRanges` says whether there is
///   any.
/// - `lastKnownTimeCode` is not written when it is empty. One that is undated or has a frame above 99 goes out
///   as a text that reads back as empty.
class TrainToThriftConverter : public Converter<Corvane::Data::Clips::Train, Generated::Train>
{
public:
    ConversionResult To(Corvane::Data::Clips::Train const& source,
                        Generated::Train& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Train&& source, Generated::Train& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
