#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct StartCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class StartRecordingCommandParams;
} // namespace Generated

/// Reads a domain `StartCommandParams` from the wire record `StartRecordingCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them.
class ThriftToStartRecordingCommandParamsConverter
    : public Converter<Generated::StartRecordingCommandParams, HighLevelOperations::Commands::StartCommandParams>
{
public:
    ConversionResult To(Generated::StartRecordingCommandParams const& source,
                        HighLevelOperations::Commands::StartCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::StartRecordingCommandParams&& source,
                        HighLevelOperations::Commands::StartCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
