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

/// Applies the fields of the wire record `RecorderState` whose flag is set to a domain `RecorderState`. The destination
/// is not reset.
///
/// The remaining capacity never exceeds the total: a new remaining capacity raises the total, then a new total lowers
/// the remaining capacity. A clip replaces the destination's and sets `hasRecorderTrain`, which is never cleared.
///
/// Failures, with the fields before them already applied:
/// - any failure of ThriftToClipConverter, from `recorderTrain`.
/// - "RecorderState is empty": no field is set.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
///
/// Lost: an invalid time code text is skipped; a name above 24 bytes is cut; the high words of `serial` and of the
/// capacities; unknown enumeration numbers read as 0; for the clip, what ThriftToClipConverter loses.
class ThriftToRecorderStateConverter
    : public Converter<Generated::RecorderState, Corvane::Data::Channels::RecorderState>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::RecorderState const& source,
                               Corvane::Data::Channels::RecorderState& destination) const;

    ConversionResult To(Generated::RecorderState const& source,
                        Corvane::Data::Channels::RecorderState& destination) const noexcept override;

    ConversionResult To(Generated::RecorderState&& source,
                        Corvane::Data::Channels::RecorderState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
