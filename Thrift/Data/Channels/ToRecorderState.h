#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Channels
{
class RecorderState;
} // namespace Talvo::Corvane::Data::Channels

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

namespace Generated
{
class RecorderState;
} // namespace Generated

/// Applies the fields of the wire record `RecorderState` whose flag is set to a domain `RecorderState`, as it stands.
///
/// The remaining capacity never ends above the total one: a new remaining capacity raises the total, then a new total
/// lowers what remains. A clip replaces the one of the destination and sets `hasRecorderTrain`, which nothing clears.
///
/// Failures, with what was applied before them left in the destination:
/// - any of ThriftToClipConverter, from `recorderTrain`.
/// - "RecorderState is empty": no field was there.
///
/// Ends the process: what ends it in ThriftToClipConverter.
///
/// Lost on the way: a time code that is no time code text is skipped; a name above 24 bytes is cut; the high words of
/// `serial` and of the capacities; unknown enumeration numbers read as 0; of the clip what ThriftToClipConverter loses.
class ThriftToRecorderStateConverter
    : public Converter<Generated::RecorderState, Corvane::Data::Channels::RecorderState>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::RecorderState const& source,
                               Corvane::Data::Channels::RecorderState& destination) const;

    ConversionResult To(Generated::RecorderState const& source,
                        Corvane::Data::Channels::RecorderState& destination) const noexcept override;

    ConversionResult To(Generated::RecorderState&& source,
                        Corvane::Data::Channels::RecorderState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
