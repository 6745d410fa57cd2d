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
/// The identifier is taken whether its flag is set or not. Channels are added to those that the destination holds; a
/// clear flag empties them.
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
