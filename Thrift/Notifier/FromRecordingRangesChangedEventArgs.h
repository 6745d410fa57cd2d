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

/// Writes a domain `RecordingRangesChangedEventArgs` into the wire record `RecordingRangesChangedEventArgs`. It can't
/// fail.
///
/// Ranges are appended to those in the destination; the flag of `recordingRanges` is set if the list is then not empty,
/// else cleared.
///
/// Lost: what RecordingRangeToThriftConverter loses.
class RecordingRangesChangedEventArgsToThriftConverter
    : public Converter<Notification::RecordingRangesChangedEventArgs, Generated::RecordingRangesChangedEventArgs>
{
public:
    ConversionResult To(Notification::RecordingRangesChangedEventArgs const& source,
                        Generated::RecordingRangesChangedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::RecordingRangesChangedEventArgs&& source,
                        Generated::RecordingRangesChangedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
