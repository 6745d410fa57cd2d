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

/// Replaces a domain `RecordingRange` with the wire record `RecordingRange`.
///
/// Failures, with the destination unchanged:
/// - "RecordingRange is empty": one of the four flags is clear.
/// - "Invalid TimeCode format": TalvoTimeCodeParser rejects a time code.
class ThriftToRecordingRangeConverter
    : public Converter<Generated::RecordingRange, Corvane::Data::Clips::RecordingRange>
{
public:
    ConversionResult To(Generated::RecordingRange const& source,
                        Corvane::Data::Clips::RecordingRange& destination) const noexcept override;

    ConversionResult To(Generated::RecordingRange&& source,
                        Corvane::Data::Clips::RecordingRange& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
