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

/// Reads a domain `StopCommandParams` from the wire record `StopRecordingCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them.
class ThriftToStopRecordingCommandParamsConverter
    : public Converter<Generated::StopRecordingCommandParams, HighLevelOperations::Commands::StopCommandParams>
{
public:
    ConversionResult To(Generated::StopRecordingCommandParams const& source,
                        HighLevelOperations::Commands::StopCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::StopRecordingCommandParams&& source,
                        HighLevelOperations::Commands::StopCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
