#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Clips
{
struct RecordingRange;
} // namespace Talvo::Corvane::Data::Clips

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

namespace Generated
{
class RecordingRange;
} // namespace Generated

/// Writes a domain `RecordingRange` into the wire record `RecordingRange`: all four bounds, including empty ones. It
/// can't fail.
///
/// Lost: that a time code is empty, since it is written as the text of `Clip::DefaultTimecode()`. A time code that is
/// undated or has a frame above 99 is written as a text that ThriftToRecordingRangeConverter rejects.
class RecordingRangeToThriftConverter
    : public Converter<Corvane::Data::Clips::RecordingRange, Generated::RecordingRange>
{
public:
    ConversionResult To(Corvane::Data::Clips::RecordingRange const& source,
                        Generated::RecordingRange& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::RecordingRange&& source,
                        Generated::RecordingRange& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
