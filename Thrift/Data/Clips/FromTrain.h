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
/// - Without a clip, the flag of `trainData` is cleared.
/// - Ranges are appended to those in the destination; the flag of `recordingRanges` is set if the list is then not
///   empty, else cleared.
/// - `lastKnownTimeCode` is not written when it is empty. If it is undated or has a frame above 99, it is written as a
///   text that reads back as empty.
class TrainToThriftConverter : public Converter<Corvane::Data::Clips::Train, Generated::Train>
{
public:
    ConversionResult To(Corvane::Data::Clips::Train const& source,
                        Generated::Train& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Train&& source, Generated::Train& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
