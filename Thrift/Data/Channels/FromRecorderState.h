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
/// The destination is expected to be new and is not reset. These stay off the wire, with value and flag as they were:
/// empty time points and time codes, a `primaryTimecodeType` of 0, and the clip unless `hasRecorderTrain` says that
/// there is one. A time code that is undated or has a frame above 99 goes out as a text that
/// ThriftToRecorderStateConverter skips.
///
/// Lost on the way: domain enumerators outside their table, which travel as 0.
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
