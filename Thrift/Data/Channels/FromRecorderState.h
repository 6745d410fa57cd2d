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

/// Writes a domain `RecorderState` into the wire record `RecorderState`. It can't fail.
///
/// The destination should be new; it is not reset. These fields are not written, and their value and flag are
/// unchanged: empty time points and time codes, a `primaryTimecodeType` of 0, and the clip if `hasRecorderTrain` is
/// false. A time code that is undated or has a frame above 99 is written as a text that ThriftToRecorderStateConverter
/// skips.
///
/// Lost: domain enumerators outside their table, which are written as 0.
class RecorderStateToThriftConverter
    : public Converter<Corvane::Data::Channels::RecorderState, Generated::RecorderState>
{
public:
    ConversionResult To(Corvane::Data::Channels::RecorderState const& source,
                        Generated::RecorderState& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::RecorderState&& source,
                        Generated::RecorderState& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
