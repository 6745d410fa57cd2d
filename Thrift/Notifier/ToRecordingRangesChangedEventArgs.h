#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct RecordingRangesChangedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class RecordingRangesChangedEventArgs;
} // namespace Generated

/// Replaces a domain `RecordingRangesChangedEventArgs` with the wire record `RecordingRangesChangedEventArgs`. The two
/// booleans are read regardless of their flags, and a range that fails becomes an empty one.
///
/// Failure: "RecordingRangesChanged is empty" when neither the flag of `recorderId` nor that of `recordingRanges` is
/// set; the destination is then replaced, with a default identifier and no ranges.
class ThriftToRecordingRangesChangedEventArgsConverter
    : public Converter<Generated::RecordingRangesChangedEventArgs, Notification::RecordingRangesChangedEventArgs>
{
public:
    ConversionResult To(Generated::RecordingRangesChangedEventArgs const& source,
                        Notification::RecordingRangesChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Generated::RecordingRangesChangedEventArgs&& source,
                        Notification::RecordingRangesChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
