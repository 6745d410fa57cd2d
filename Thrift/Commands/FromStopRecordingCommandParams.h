#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct StopCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class StopRecordingCommandParams;
} // namespace Generated

/// Writes a domain `StopCommandParams` into the wire record `StopRecordingCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged.
class StopRecordingCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::StopCommandParams, Generated::StopRecordingCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::StopCommandParams const& source,
                        Generated::StopRecordingCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::StopCommandParams&& source,
                        Generated::StopRecordingCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
