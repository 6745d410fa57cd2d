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
/// Ranges are appended to those that the destination holds, and the flag of `recordingRanges` says whether there is
/// any.
///
/// Lost on the way: what RecordingRangeToThriftConverter loses.
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
