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

/// Writes a domain `StartCommandParams` into the wire record `StartRecordingCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged.
class StartRecordingCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::StartCommandParams, Generated::StartRecordingCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::StartCommandParams const& source,
                        Generated::StartRecordingCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::StartCommandParams&& source,
                        Generated::StartRecordingCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
